#include "ide/main_window.h"

#include <QStackedWidget>

#include "ide/empty_page.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

constexpr QSize kDefaultSize(1080, 700);
constexpr QSize kSmallestSize(320, 240);

}  // namespace

MainWindow::MainWindow(const Services& services)
    : services_(services), pages_(new QStackedWidget), empty_(new EmptyPage({})) {
    setObjectName("frmVelIDEMain");
    setWindowTitle("Fabula IDE");
    setMinimumSize(kSmallestSize);
    pages_->addWidget(empty_);
    setCentralWidget(pages_);
    resize(kDefaultSize);
}

MainWindow::~MainWindow() = default;

void MainWindow::Open(const std::filesystem::path& file) {
    try {
        document_ = std::make_unique<authoring::Document>(file);
        setWindowTitle("Fabula IDE - " + qt::PathToQt(file.stem()));
    } catch (const Error& error) {
        services_.dialogs.Tell(error.what(), "Error");
    }
}

}  // namespace fabula::ide
