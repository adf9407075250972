#include "ide/drawing/tracing_panel.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>

#include "ide/drawing/image_import_dialog.h"
#include "ide/editors/edit_controls.h"
#include "qt/look/game_image.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

QSpinBox* NewNumber(const char* name, const QString& caption, int lowest, int highest) {
    auto* number = new QSpinBox;
    number->setObjectName(name);
    number->setAccessibleName(caption);
    number->setToolTip(caption);
    number->setRange(lowest, highest);
    return number;
}

}  // namespace

TracingPanel::TracingPanel(platform::Settings& settings, std::filesystem::path adventure, int picture,
                           platform::Dialogs& dialogs, QWidget* parent)
    : QGroupBox(tr("Tracing image"), parent),
      settings_(settings),
      adventure_(std::move(adventure)),
      picture_(picture),
      dialogs_(dialogs),
      strength_(new QSlider(Qt::Horizontal)),
      left_(NewNumber("TracingLeft", tr("Left edge of the tracing image"), -authoring::kWidestTracing,
                      authoring::kWidestTracing)),
      top_(NewNumber("TracingTop", tr("Top edge of the tracing image"), -authoring::kWidestTracing,
                     authoring::kWidestTracing)),
      width_(NewNumber("TracingWidth", tr("Width of the tracing image"), authoring::kNarrowestTracing,
                       authoring::kWidestTracing)),
      remove_(NewButton(tr("Remove"), "RemoveTracing")) {
    strength_->setObjectName("TracingStrength");
    strength_->setAccessibleName(tr("Strength of the tracing image"));
    strength_->setToolTip(strength_->accessibleName());
    strength_->setRange(0, 100);
    auto* choose = NewButton(tr("Choose..."), "ChooseTracing");
    auto* files = new QHBoxLayout;
    files->addWidget(choose);
    files->addWidget(remove_);
    files->addStretch();
    auto* form = new QFormLayout(this);
    form->addRow(files);
    form->addRow(tr("Strength:"), strength_);
    form->addRow(tr("Left:"), left_);
    form->addRow(tr("Top:"), top_);
    form->addRow(tr("Width:"), width_);
    connect(choose, &QPushButton::clicked, this, [this] { Choose(); });
    connect(remove_, &QPushButton::clicked, this, [this] { Remove(); });
    connect(strength_, &QSlider::valueChanged, this, [this] { ReadControls(); });
    for (const QSpinBox* number : {left_, top_, width_})
        connect(number, &QSpinBox::valueChanged, this, [this] { ReadControls(); });
    ShowControls();
}

void TracingPanel::Begin() {
    tracing_ = authoring::FindTracing(settings_, adventure_, picture_);
    if (tracing_ && !Load(tracing_->file)) tracing_.reset();
    ShowControls();
    Tell();
}

bool TracingPanel::Load(const std::filesystem::path& file) {
    image_ = qt::ReadImage(file);
    return !image_.isNull();
}

void TracingPanel::Choose() {
    platform::FileQuestion question;
    question.title = "Image to Trace";
    question.filter = kImageFilter;
    question.start = tracing_ ? tracing_->file : adventure_.parent_path();
    const auto file = dialogs_.ChooseFile(question);
    if (!file) return;
    if (!Load(*file)) {
        dialogs_.Tell("The file " + file->string() + " holds no image that can be shown.", "Error");
        return Begin();
    }
    if (!tracing_) tracing_.emplace();
    tracing_->file = *file;
    authoring::KeepTracing(settings_, adventure_, picture_, tracing_);
    ShowControls();
    Tell();
}

void TracingPanel::Remove() {
    tracing_.reset();
    authoring::KeepTracing(settings_, adventure_, picture_, tracing_);
    ShowControls();
    Tell();
}

void TracingPanel::ReadControls() {
    if (showing_ || !tracing_) return;
    tracing_->strength = strength_->value();
    tracing_->left = left_->value();
    tracing_->top = top_->value();
    tracing_->width = width_->value();
    authoring::KeepTracing(settings_, adventure_, picture_, tracing_);
    Tell();
}

void TracingPanel::ShowControls() {
    showing_ = true;
    const authoring::TracingImage shown = tracing_.value_or(authoring::TracingImage{});
    strength_->setValue(shown.strength);
    left_->setValue(shown.left);
    top_->setValue(shown.top);
    width_->setValue(shown.width);
    for (QWidget* control :
         {static_cast<QWidget*>(strength_), static_cast<QWidget*>(left_), static_cast<QWidget*>(top_),
          static_cast<QWidget*>(width_), static_cast<QWidget*>(remove_)})
        control->setEnabled(tracing_.has_value());
    showing_ = false;
}

void TracingPanel::Tell() {
    if (!tracing_) return changed(std::nullopt);
    const int height = std::max(1, image_.height() * tracing_->width / std::max(1, image_.width()));
    changed(
        Tracing{image_, tracing_->strength, QRect(tracing_->left, tracing_->top, tracing_->width, height)});
}

}  // namespace fabula::ide
