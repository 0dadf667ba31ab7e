#include "platform/http_get.h"

#include "platform/curl_handle.h"

namespace tallix {
namespace {

constexpr long kMostRedirections = 5;
constexpr char kProtocols[] = "http,https";

struct Answer {
    std::string bytes;
    std::size_t largest = 0;
};

/// Takes a piece of the answer; another count than `size` ends the transfer.
std::size_t TakePiece(const char* piece, std::size_t, std::size_t size, void* target) {
    Answer& answer = *static_cast<Answer*>(target);
    if (size > answer.largest - answer.bytes.size()) return 0;
    answer.bytes.append(piece, size);
    return size;
}

class Fetching {
public:
    Fetching() : handle_(curl_easy_init()) {}

    bool Prepare(const HttpRequest& request) {
        answer_.largest = request.largest;
        return handle_ != nullptr && SetAddress(request.address) && SetProxy(request.proxy) &&
               SetLimit(request.limit) && SetAnswer();
    }

    std::optional<std::string> Perform() {
        if (curl_easy_perform(handle_.get()) != CURLE_OK) return {};
        return std::move(answer_.bytes);
    }

private:
    template <typename Value>
    bool Set(CURLoption option, Value value) {
        return curl_easy_setopt(handle_.get(), option, value) == CURLE_OK;
    }

    bool SetAddress(const std::string& address) {
        return Set(CURLOPT_URL, address.c_str()) && Set(CURLOPT_PROTOCOLS_STR, kProtocols) &&
               Set(CURLOPT_REDIR_PROTOCOLS_STR, kProtocols) && Set(CURLOPT_FOLLOWLOCATION, 1L) &&
               Set(CURLOPT_MAXREDIRS, kMostRedirections);
    }

    // Empty texts, where nothing at all would mean what the environment says.
    bool SetProxy(const std::string& proxy) {
        return Set(CURLOPT_PROXY, proxy.c_str()) && Set(CURLOPT_NOPROXY, "");
    }

    // Quick exit: a look-up of the server's name that hangs is abandoned, not waited for.
    bool SetLimit(std::chrono::milliseconds limit) {
        return Set(CURLOPT_TIMEOUT_MS, static_cast<long>(limit.count())) && Set(CURLOPT_NOSIGNAL, 1L) &&
               Set(CURLOPT_QUICK_EXIT, 1L);
    }

    bool SetAnswer() {
        return Set(CURLOPT_FAILONERROR, 1L) && Set(CURLOPT_WRITEFUNCTION, &TakePiece) &&
               Set(CURLOPT_WRITEDATA, &answer_);
    }

    CurlOwned<CURL> handle_;
    Answer answer_;
};

}  // namespace

std::optional<std::string> HttpGet(const HttpRequest& request) {
    const CurlLibrary library;
    if (!library.IsReady()) return {};
    Fetching fetching;
    if (!fetching.Prepare(request)) return {};
    return fetching.Perform();
}

}  // namespace tallix
