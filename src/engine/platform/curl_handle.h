// The transfer library's objects as values that end by themselves.
#pragma once

#include <curl/curl.h>

#include <memory>

namespace tallix {

/// The library's own set-up; it counts its users, so that others do not mind.
class CurlLibrary {
public:
    CurlLibrary() : ready_(curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK) {}
    ~CurlLibrary() {
        if (ready_) curl_global_cleanup();
    }
    CurlLibrary(const CurlLibrary&) = delete;
    CurlLibrary& operator=(const CurlLibrary&) = delete;
    bool IsReady() const { return ready_; }

private:
    bool ready_;
};

struct CurlDeleter {
    void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
    void operator()(CURLU* url) const { curl_url_cleanup(url); }
    void operator()(curl_mime* mime) const { curl_mime_free(mime); }
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};

template <typename T>
using CurlOwned = std::unique_ptr<T, CurlDeleter>;

}  // namespace tallix
