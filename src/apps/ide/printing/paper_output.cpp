#include "ide/printing/paper_output.h"

#include <QBuffer>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include "ide/printing/sheet_painter.h"
#include "listings/pages/frame.h"
#include "listings/pages/outputs.h"
#include "listings/record.h"
#include "platform/error.h"
#include "qt/strings.h"
#include "store/file/file_copy.h"
#include "text/encoding/utf8.h"
#include "text/fields.h"

namespace fabula::ide {
namespace {

constexpr int kDotsPerInch = 300;
constexpr qreal kMarginMillimetres = 15;

void SetUp(QPagedPaintDevice& device) {
    device.setPageSize(QPageSize(QPageSize::A4));
    device.setPageMargins(
        QMarginsF(kMarginMillimetres, kMarginMillimetres, kMarginMillimetres, kMarginMillimetres),
        QPageLayout::Millimeter);
}

bool IsPdfName(const std::filesystem::path& file) {
    return text::EqualsNoCase(file.extension().string(), ".pdf");
}

listings::Paper PaperOfText(std::string_view text, std::string_view title) {
    listings::Paper paper;
    listings::Frame frame(paper, "");
    frame.Begin(title, {});
    for (const std::string_view line : text::Split(text, "\n")) {
        listings::Record record;
        record.Text("%a", {}, line, {});
        frame.Add(record.Take());
    }
    return paper;
}

}  // namespace

void PaintPages(QPagedPaintDevice& device, const listings::Paper& paper) {
    QPainter painter;
    if (!painter.begin(&device)) throw Error("Could not print the listing: the printer can't be used.");
    const QRectF area(0, 0, device.width(), device.height());
    bool first = true;
    for (const listings::Sheet& sheet : paper.Sheets()) {
        if (!first && !device.newPage())
            throw Error("Could not print the listing: the printer takes no further page.");
        first = false;
        PaintSheet(painter, sheet, paper.Columns(), area);
    }
    if (!painter.end()) throw Error("Could not print the listing: the printer did not take it.");
}

std::string PdfOf(const listings::Paper& paper, const QString& title) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&buffer);
    pdf.setResolution(kDotsPerInch);
    pdf.setTitle(title);
    pdf.setCreator("Fabula");
    SetUp(pdf);
    PaintPages(pdf, paper);
    return bytes.toStdString();
}

bool PrintOnPrinter(const listings::Paper& paper, const QString& title, QWidget* parent) {
    if (QPrinterInfo::availablePrinters().isEmpty())
        throw Error(
            "Could not print the listing: this system has no printer. Save As of Print makes a PDF file.");
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(title);
    SetUp(printer);
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() != QDialog::Accepted) return false;
    PaintPages(printer, paper);
    return true;
}

void WriteListing(const std::filesystem::path& file, const listings::PrintJob& job,
                  store::Adventure& adventure) {
    store::CheckTarget(file, store::Content::Text);
    if (IsPdfName(file)) {
        const listings::Paper paper = listings::PaperListing(*job.report, job.request, adventure);
        return store::WriteFile(file, PdfOf(paper, qt::ToQt(job.title)));
    }
    store::WriteFile(file, listings::IsHtmlName(file)
                               ? listings::HtmlListing(*job.report, job.request, adventure)
                               : listings::TextListing(*job.report, job.request, adventure));
}

void PrintText(std::string_view text, std::string_view title, platform::Dialogs& dialogs, QWidget* parent,
               const PrintPaper& print) {
    try {
        print(PaperOfText(text, title), qt::ToQt(title), parent);
    } catch (const Error& error) {
        dialogs.Tell(error.what(), "Error");
    }
}

}  // namespace fabula::ide
