#include "toolkit/page_stamp.h"

// Makes the document library use the standard library's pointers.
#define POINTERHOLDER_TRANSITION 4

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <memory>
#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>
#include <vector>

namespace tallix::toolkit {
namespace {

constexpr int kPointsToTheInch = 72;
constexpr int kFontSize = 9;
constexpr int kSideMargin = 42;  ///< in points, as are the others
constexpr int kEdgeMargin = 24;
constexpr char kStampName[] = "/TallixStamp";

using Pages = std::vector<QPDFPageObjectHelper>;

void ReadDocument(QPDF& document, const QByteArray& pdf) {
    document.setSuppressWarnings(true);
    document.processMemoryFile("report", pdf.constData(), static_cast<std::size_t>(pdf.size()));
}

QSizeF SizeOf(QPDFPageObjectHelper& page) {
    const QPDFObjectHandle::Rectangle box = page.getMediaBox().getArrayAsRectangle();
    return {box.urx - box.llx, box.ury - box.lly};
}

void DrawLine(QPainter& painter, const QRectF& area, const PageLine& line) {
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, QString::fromStdString(line.left));
    painter.drawText(area, Qt::AlignHCenter | Qt::AlignVCenter, QString::fromStdString(line.centre));
    painter.drawText(area, Qt::AlignRight | Qt::AlignVCenter, QString::fromStdString(line.right));
}

/// A document of the same number of pages with only headers and footers.
QByteArray DrawStamps(const QSizeF& size, const PageSetup& setup, int pages) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(kPointsToTheInch);
    writer.setPageSize(QPageSize(size, QPageSize::Point, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    painter.setFont(QFont("Arial", kFontSize));
    const double width = size.width() - 2 * kSideMargin;
    const double height = 2 * kFontSize;
    const QRectF head(kSideMargin, kEdgeMargin, width, height);
    const QRectF foot(kSideMargin, size.height() - kEdgeMargin - height, width, height);
    for (int page = 1; page <= pages; ++page) {
        if (page > 1) writer.newPage();
        DrawLine(painter, head, ExpandPageLine(setup.header, page, pages));
        DrawLine(painter, foot, ExpandPageLine(setup.footer, page, pages));
    }
    painter.end();
    return bytes;
}

/// Draws one page over another, from the corner that both begin at.
void Overlay(QPDF& document, QPDFPageObjectHelper& page, QPDFPageObjectHelper& stamp) {
    const QPDFObjectHandle form = document.copyForeignObject(stamp.getFormXObjectForPage());
    QPDFObjectHandle resources = page.getAttribute("/Resources", true);
    if (!resources.isDictionary()) {
        resources = QPDFObjectHandle::newDictionary();
        page.getObjectHandle().replaceKey("/Resources", resources);
    }
    resources.mergeResources(QPDFObjectHandle::parse("<< /XObject << >> >>"));
    resources.getKey("/XObject").replaceKey(kStampName, form);
    page.addPageContents(document.newStream("q\n"), true);
    page.addPageContents(document.newStream("\nQ\nq " + std::string(kStampName) + " Do Q\n"), false);
}

QByteArray Write(QPDF& document) {
    QPDFWriter writer(document);
    writer.setOutputMemory();
    writer.write();
    const std::shared_ptr<Buffer> buffer = writer.getBufferSharedPointer();
    return {reinterpret_cast<const char*>(buffer->getBuffer()), static_cast<qsizetype>(buffer->getSize())};
}

QByteArray Stamp(const QByteArray& pdf, const PageSetup& setup) {
    QPDF document;
    ReadDocument(document, pdf);
    Pages pages = QPDFPageDocumentHelper(document).getAllPages();
    if (pages.empty()) return {};
    const QByteArray stampsPdf = DrawStamps(SizeOf(pages.front()), setup, static_cast<int>(pages.size()));
    QPDF stampDocument;
    ReadDocument(stampDocument, stampsPdf);
    Pages stamps = QPDFPageDocumentHelper(stampDocument).getAllPages();
    for (std::size_t i = 0; i < pages.size(); ++i) Overlay(document, pages.at(i), stamps.at(i));
    return Write(document);
}

}  // namespace

QByteArray StampPages(const QByteArray& pdf, const PageSetup& setup) {
    try {
        return Stamp(pdf, setup);
    } catch (const std::exception&) {  // from the library, for bytes that are not a document
        return {};
    }
}

}  // namespace tallix::toolkit
