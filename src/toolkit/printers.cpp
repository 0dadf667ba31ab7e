#include "toolkit/printers.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace tallix::toolkit {
namespace {

std::string PagesOf(const QPrinter& printer) {
    if (printer.printRange() != QPrinter::PageRange || printer.fromPage() == 0) return "";
    return std::to_string(printer.fromPage()) + "-" + std::to_string(printer.toPage());
}

}  // namespace

std::vector<std::string> Printers::Names() const {
    std::vector<std::string> names;
    for (const QString& name : QPrinterInfo::availablePrinterNames()) names.push_back(name.toStdString());
    return names;
}

// Without a printer the dialog would offer files alone, and pages are not printed to files.
std::optional<PrintTicket> Printers::Ask(QWidget* parent) const {
    if (Names().empty()) return {};
    QPrinter printer;
    if (!current_.empty()) printer.setPrinterName(QString::fromStdString(current_));
    QPrintDialog dialog(&printer, parent);
    dialog.setOption(QAbstractPrintDialog::PrintToFile, false);
    if (dialog.exec() != QDialog::Accepted || printer.outputFormat() != QPrinter::NativeFormat) return {};
    return PrintTicket{.printer = printer.printerName().toStdString(),
                       .title = "",
                       .copies = printer.copyCount(),
                       .pageRange = PagesOf(printer)};
}

}  // namespace tallix::toolkit
