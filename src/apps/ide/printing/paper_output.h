#pragma once

#include <QString>
#include <filesystem>
#include <functional>
#include <string>

#include "listings/pages/paper.h"
#include "listings/pages/print_screen.h"

class QPagedPaintDevice;
class QWidget;

namespace fabula::ide {

/// Where listings are printed: asks for a printer and prints on it. False when the author would rather not.
/// Throws fabula::Error with one sentence when the printer fails.
using PrintPaper = std::function<bool(const listings::Paper& paper, const QString& title, QWidget* parent)>;

/// The printers of the system, by its own dialog.
bool PrintOnPrinter(const listings::Paper& paper, const QString& title, QWidget* parent);

/// Prints every sheet on a page of its own, within the margins. Throws fabula::Error when the device fails.
void PaintPages(QPagedPaintDevice& device, const listings::Paper& paper);

/// A listing as a PDF file on sheets of A4.
std::string PdfOf(const listings::Paper& paper, const QString& title);

/// Writes a listing to a file, in the form that its extension names: ".pdf", ".html", else text. Throws
/// fabula::Error, and leaves the file as it was, when it may not or can't be written.
void WriteListing(const std::filesystem::path& file, const listings::PrintJob& job,
                  store::Adventure& adventure);

/// Prints a text, such as the status of a job, under a title; what fails is told in a box.
void PrintText(std::string_view text, std::string_view title, platform::Dialogs& dialogs, QWidget* parent,
               const PrintPaper& print = PrintOnPrinter);

}  // namespace fabula::ide
