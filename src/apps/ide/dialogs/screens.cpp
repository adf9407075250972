#include "ide/dialogs/screens.h"

#include "authoring/screens/flag_screen.h"
#include "authoring/screens/location_screen.h"
#include "authoring/screens/message_screen.h"
#include "authoring/screens/object_screen.h"
#include "authoring/screens/process_entry_screen.h"
#include "authoring/screens/word_screen.h"
#include "authoring/settings/settings_screen.h"
#include "ide/dialogs/records/flag_dialog.h"
#include "ide/dialogs/records/location_dialog.h"
#include "ide/dialogs/records/message_dialog.h"
#include "ide/dialogs/records/object_dialog.h"
#include "ide/dialogs/records/process_entry_dialog.h"
#include "ide/dialogs/records/record_jumps.h"
#include "ide/dialogs/records/word_dialog.h"
#include "ide/dialogs/settings/settings_dialog.h"

namespace fabula::ide {
namespace {

using authoring::Screen;

/// A screen with the dialog on it.
template <typename EditedDialog, typename Logic>
class Record final : public OpenedRecord {
  public:
    template <typename Key>
    Record(authoring::ScreenContext& context, const Key& key, QWidget* parent)
        : screen_(context, key), dialog_(screen_, parent) {}
    QDialog& Dialog() override { return dialog_; }
    RecordEditor& Editor() override { return dialog_; }
    void GoTo(int key) override {
        screen_.GoTo(key);
        dialog_.ShowRecord();
    }

  private:
    Logic screen_;
    EditedDialog dialog_;
};

std::unique_ptr<OpenedRecord> Opened(const authoring::ScreenRequest& request,
                                     authoring::ScreenContext& context, QWidget* parent) {
    using namespace authoring;
    const ScreenKey key = request.key;
    switch (request.screen) {
        case Screen::Location:
            return std::make_unique<Record<LocationDialog, LocationScreen>>(context, key, parent);
        case Screen::Object:
            return std::make_unique<Record<ObjectDialog, ObjectScreen>>(context, key, parent);
        case Screen::Word:
            return std::make_unique<Record<WordDialog, WordScreen>>(context, key, parent);
        case Screen::Flag:
            return std::make_unique<Record<FlagDialog, FlagScreen>>(context, key, parent);
        case Screen::Text:
            return std::make_unique<Record<MessageDialog, MessageScreen>>(context, key, parent);
        case Screen::ProcessEntry:
            return std::make_unique<Record<ProcessEntryDialog, ProcessEntryScreen>>(context, request,
                                                                                    parent);
        case Screen::Settings:
        case Screen::Picture:
        case Screen::Character:
            break;
    }
    return nullptr;
}

void ShowSettings(authoring::ScreenContext& context, const SoundTrial& sound, QWidget* parent) {
    authoring::SettingsScreen screen(context, sound.devices());
    SettingsDialog dialog(screen, sound.player, parent);
    dialog.exec();
}

}  // namespace

std::unique_ptr<OpenedRecord> OpenRecord(const authoring::ScreenRequest& request,
                                         authoring::ScreenContext& context) {
    return Opened(request, context, nullptr);
}

std::optional<authoring::Jump> OpenScreen(const authoring::ScreenRequest& request,
                                          authoring::ScreenContext& context, const SoundTrial& sound,
                                          authoring::Navigator& navigator, QWidget* parent) {
    if (request.screen == Screen::Settings) {
        ShowSettings(context, sound, parent);
        return std::nullopt;
    }
    const auto record = Opened(request, context, parent);
    if (!record) return std::nullopt;
    const RecordJumps jumps(*record, request, context, navigator);
    record->Dialog().exec();
    return jumps.Wanted();
}

}  // namespace fabula::ide
