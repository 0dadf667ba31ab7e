#include "platform/print_spooler.h"

#include <cups/cups.h>

#include <memory>

namespace tallix {
namespace {

constexpr int kNoJob = 0;
constexpr int kLastDocument = 1;

/// The options of one job, in the form in which the spooler takes them.
class JobOptions {
public:
    JobOptions() = default;
    ~JobOptions() { cupsFreeOptions(count_, options_); }
    JobOptions(const JobOptions&) = delete;
    JobOptions& operator=(const JobOptions&) = delete;

    void Add(const char* name, const std::string& value) {
        count_ = cupsAddOption(name, value.c_str(), count_, &options_);
    }
    int Count() const { return count_; }
    cups_option_t* Options() const { return options_; }

private:
    int count_ = 0;
    cups_option_t* options_ = nullptr;
};

std::string DefaultPrinter() {
    const char* name = cupsGetDefault();
    return name == nullptr ? "" : name;
}

int CreateJob(const std::string& printer, const PrintTicket& ticket) {
    JobOptions options;
    if (ticket.copies > 1) options.Add("copies", std::to_string(ticket.copies));
    if (!ticket.pageRange.empty()) options.Add("page-ranges", ticket.pageRange);
    return cupsCreateJob(CUPS_HTTP_DEFAULT, printer.c_str(), ticket.title.c_str(), options.Count(),
                         options.Options());
}

bool SendDocument(const std::string& printer, int job, const std::string& title, std::string_view pdf) {
    if (cupsStartDocument(CUPS_HTTP_DEFAULT, printer.c_str(), job, title.c_str(), CUPS_FORMAT_PDF,
                          kLastDocument) != HTTP_STATUS_CONTINUE) {
        return false;
    }
    const bool sent = cupsWriteRequestData(CUPS_HTTP_DEFAULT, pdf.data(), pdf.size()) == HTTP_STATUS_CONTINUE;
    return cupsFinishDocument(CUPS_HTTP_DEFAULT, printer.c_str()) <= IPP_STATUS_OK_CONFLICTING && sent;
}

}  // namespace

bool SpoolDocument(const PrintTicket& ticket, std::string_view pdf) {
    const std::string printer = ticket.printer.empty() ? DefaultPrinter() : ticket.printer;
    const int job = printer.empty() ? kNoJob : CreateJob(printer, ticket);
    if (job == kNoJob) return false;
    if (SendDocument(printer, job, ticket.title, pdf)) return true;
    cupsCancelJob2(CUPS_HTTP_DEFAULT, printer.c_str(), job, 1);
    return false;
}

}  // namespace tallix
