#include "ide/dialogs/records/object_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include "condacts/words.h"
#include "qt/strings.h"

namespace fabula::ide {
namespace {

using authoring::InitialPlace;

/// In the order of InitialPlace.
constexpr const char* kPlaces[] = {"&Not created", "&Worn", "&Carried", "In a &room"};

/// What the field of the noun shows.
QString TextOf(const authoring::ListItem* word) {
    const bool none = word == nullptr || word->number == condacts::kNoWordNumber.value;
    return none ? QString() : qt::ToQt(word->text);
}

/// The nouns, in which a new one may be typed.
QComboBox* NewNounList(const authoring::DropList& list) {
    QComboBox* box = NewDropList(list);
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    // Nouns that begin so are offered below: completed in the line, a new one would become one of them.
    box->completer()->setCompletionMode(QCompleter::PopupCompletion);
    box->lineEdit()->setPlaceholderText(qt::Translated("None"));
    box->setEditText(TextOf(list.Chosen()));
    return box;
}

}  // namespace

ObjectDialog::ObjectDialog(authoring::ObjectScreen& screen, QWidget* parent)
    : RecordDialog(screen, {}, "frmvelobjects.html", parent),
      screen_(screen),
      editing_(screen.Adventure()),
      description_(new MarkupEdit(editing_, {tr("&Description:"), "", true}, "description")),
      noun_(NewNounList(screen.noun)),
      makeNoun_(new QCheckBox),
      adjective_(NewDropList(screen.adjective)),
      places_(new QButtonGroup(this)),
      room_(NewLocationList(screen.room)),
      container_(new QCheckBox(tr("Conta&iner"))),
      wearable_(new QCheckBox(tr("Wear and remo&ve"))),
      inside_(new QLabel),
      weight_(new QLineEdit) {
    form_->addRow(description_);
    AddControl(tr("N&oun:"), noun_, "noun");
    AddNounOffer();
    AddControl(tr("Ad&jective:"), adjective_, "adjective");
    AddControl(tr("Initial location:"), NewPlaces(), "initialPlace");
    AddControl(tr("Roo&m:"), room_, "room");
    container_->setObjectName("container");
    container_->setAccessibleName(tr("Container"));
    wearable_->setObjectName("wearable");
    wearable_->setAccessibleName(tr("Wear and remove"));
    form_->addRow("", container_);
    inside_->setObjectName("inside");
    inside_->setTextFormat(Qt::PlainText);
    inside_->setWordWrap(true);
    form_->addRow("", inside_);
    form_->addRow("", wearable_);
    AddControl(tr("Wei&ght:"), weight_, "weight");
    for (QWidget* control : {static_cast<QWidget*>(adjective_), static_cast<QWidget*>(container_),
                             static_cast<QWidget*>(wearable_), static_cast<QWidget*>(weight_)})
        control->setEnabled(screen_.HasAttributes());
    connect(container_, &QCheckBox::clicked, this, [this] {
        Read();
        Guarded([this] { return screen_.ClickContainer(); });
        Show();
    });
    CheckOnLeave(&description_->Field(), [this] { return screen_.LeaveDescription(); });
    CheckOnLeave(noun_, [this] { return screen_.LeaveNoun(); });
    CheckOnLeave(room_, [this] { return screen_.LeaveRoom(); });
    CheckOnLeave(weight_, [this] { return screen_.LeaveWeight(); });
    ShowRecord();
}

/// Below the noun: a tick for a noun that is not there yet, as soon as it is named.
void ObjectDialog::AddNounOffer() {
    makeNoun_->setObjectName("makeNoun");
    makeNoun_->setToolTip(tr("Update adds the word to the vocabulary"));
    form_->addRow("", makeNoun_);
    connect(makeNoun_, &QCheckBox::clicked, this, [this](bool make) {
        ReadNoun();
        screen_.ClickMakeNoun(make);
        ShowNoun();
    });
    connect(&description_->Field(), &QPlainTextEdit::textChanged, this, [this] {
        screen_.description = description_->Text();
        screen_.ProposeNoun();
        ShowNoun();
    });
    connect(noun_->lineEdit(), &QLineEdit::textEdited, this, [this] {
        ReadNoun();
        ShowNounOffer();
    });
    connect(noun_, &QComboBox::activated, this, [this] {
        ReadNoun();
        ShowNounOffer();
    });
}

QWidget* ObjectDialog::NewPlaces() {
    auto* group = new QWidget;
    auto* layout = new QVBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    for (int place = 0; place < static_cast<int>(std::size(kPlaces)); ++place) {
        auto* option = new QRadioButton(tr(kPlaces[place]));
        option->setObjectName(QString("initialPlace%1").arg(place));
        option->setAccessibleName(PlainLabel(tr(kPlaces[place])));
        places_->addButton(option, place);
        layout->addWidget(option);
        connect(option, &QRadioButton::clicked, this, [this] {
            Read();
            Show();
        });
    }
    group->setFocusProxy(places_->button(0));
    return group;
}

std::optional<authoring::NamedRecord> ObjectDialog::NamedAtCursor() {
    Read();
    const QWidget* const at = focusWidget();
    if (at == room_) return authoring::NamedByNumber(store::TableNum::Locations, screen_.room.text);
    const authoring::ListItem* word = nullptr;
    if (at == noun_) word = screen_.noun.Chosen();
    if (at == adjective_) word = screen_.adjective.Chosen();
    if (word == nullptr || word->number == condacts::kNoWordNumber.value) return std::nullopt;
    return authoring::NamedWord(screen_.Adventure(), word->text, condacts::WordNumber(word->number));
}

void ObjectDialog::Read() {
    screen_.description = description_->Text();
    ReadNoun();
    screen_.adjective.index = adjective_->currentIndex();
    if (places_->checkedId() >= 0) screen_.initialPlace = static_cast<InitialPlace>(places_->checkedId());
    screen_.room.text = LocationTyped(*room_);
    screen_.container = container_->isChecked();
    screen_.wearable = wearable_->isChecked();
    screen_.weight = qt::FromQt(weight_->text());
}

/// "No word" is an empty field. Two nouns may have one spelling: the one that was chosen stays.
void ObjectDialog::ReadNoun() {
    const QString typed = noun_->currentText().trimmed();
    const authoring::ListItem* const chosen = screen_.noun.Chosen();
    screen_.newNoun.clear();
    if (typed == TextOf(chosen)) return;
    screen_.noun.index = noun_->findText(typed, Qt::MatchFixedString);
    if (typed.isEmpty()) screen_.noun.ChooseNumber(condacts::kNoWordNumber.value);
    if (screen_.noun.Chosen() == nullptr) screen_.newNoun = qt::FromQt(typed);
}

void ObjectDialog::ShowOpened() {
    setWindowTitle(tr("Object %1").arg(screen_.Key().key));
    description_->SetText(screen_.description);
    noun_->setCurrentIndex(screen_.noun.index);
    adjective_->setCurrentIndex(screen_.adjective.index);
    ShowLocation(*room_, screen_.room.text);
}

void ObjectDialog::ShowNoun() {
    const QString word =
        screen_.newNoun.empty() ? TextOf(screen_.noun.Chosen()) : qt::ToQt(screen_.newNoun);
    if (noun_->currentText() != word) noun_->setEditText(word);
    ShowNounOffer();
}

void ObjectDialog::ShowNounOffer() {
    const QString word = qt::ToQt(screen_.OfferedNoun()).replace('&', "&&");
    QString caption = tr("Ma&ke the noun %1");
    // In a pane the letters behind Alt belong to the menus.
    if (!isWindow()) caption.remove('&');
    makeNoun_->setText(caption.arg(word));
    makeNoun_->setChecked(!screen_.newNoun.empty());
    makeNoun_->setVisible(!word.isEmpty());
}

void ObjectDialog::Show() {
    if (screen_.initialPlace) places_->button(static_cast<int>(*screen_.initialPlace))->setChecked(true);
    ShowNoun();
    ShowLocation(*room_, screen_.room.text);
    inside_->setText(qt::ToQt(screen_.Inside()));
    inside_->setVisible(screen_.container);
    room_->setEnabled(screen_.initialPlace == InitialPlace::InRoom);
    container_->setChecked(screen_.container);
    wearable_->setChecked(screen_.wearable);
    weight_->setText(qt::ToQt(screen_.weight));
}

}  // namespace fabula::ide
