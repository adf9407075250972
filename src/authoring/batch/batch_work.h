#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "authoring/document/screen_context.h"
#include "interchange/batch/batch_reader.h"

namespace fabula::authoring {

/// The screens' boxes while a batch file is read: what is told is kept, and every question that a screen
/// asks before it goes on is answered with yes. Nobody is there to choose files.
class BatchDialogs final : public platform::Dialogs {
  public:
    void Tell(std::string_view text, std::string_view) override { told_ = text; }
    bool Confirm(std::string_view, std::string_view) override { return true; }
    bool Proceed(std::string_view, std::string_view) override { return true; }
    platform::Leaving AskLeaving(std::string_view, std::string_view) override {
        return platform::Leaving::KeepEditing;
    }
    std::optional<std::filesystem::path> ChooseFile(const platform::FileQuestion&) override {
        return std::nullopt;
    }
    std::optional<std::string> AskText(const platform::TextQuestion&) override { return std::nullopt; }
    void Report(std::string_view text, std::string_view) override { told_ = text; }

    bool ProceedFromReport(std::string_view, std::string_view) override { return true; }

    /// The latest text, which is then forgotten.
    std::string TakeTold() { return std::move(told_); }

  private:
    std::string told_;
};

/// A record of a batch file that differs from the adventure's, and where its faults are told.
class BatchChange {
  public:
    struct Field {
        std::string name;  ///< of the field in the table
        const interchange::BatchEntry* entry;
    };

    BatchChange(const interchange::BatchRecord& record, ScreenKey recordKey, std::vector<Field> changed,
                const std::filesystem::path& file, interchange::JobStatus& status)
        : key(recordKey), record_(record), changed_(std::move(changed)), file_(file), status_(status) {}

    const ScreenKey key;

    bool Has(std::string_view field) const { return Find(field) != nullptr; }
    /// What the file has for a field that differs; nullopt for one that it leaves.
    std::optional<std::string> Text(std::string_view field) const;
    /// The same of a text whose words may stand on several lines.
    std::optional<std::string> Words(std::string_view field) const;
    const std::vector<Field>& Changed() const { return changed_; }

    /// Tells a fault at a field, or at the record where the file does not name that. False.
    bool Refuse(std::string_view field, std::string_view message) const;

    struct ControlField {
        std::string_view control;
        std::string_view field;
    };
    /// Tells what a screen said when it refused `control`, at the field that stands for it. False.
    bool RefuseAt(BatchDialogs& dialogs, std::string_view control,
                  std::initializer_list<ControlField> fields) const;

  private:
    const Field* Find(std::string_view field) const;

    const interchange::BatchRecord& record_;
    std::vector<Field> changed_;
    const std::filesystem::path& file_;
    interchange::JobStatus& status_;
};

/// What the routines of the tables share.
struct BatchWork {
    ScreenContext& context;
    BatchDialogs& dialogs;

    store::Adventure& Adventure() const { return context.document.Adventure(); }
};

/// Each stores one record by its screen. False when it was refused, which was told.
bool StoreLocation(BatchWork& work, const BatchChange& change);
/// The exits of a location, which may lead to locations that come later in the file.
bool StoreExits(BatchWork& work, const BatchChange& change);
bool StoreObject(BatchWork& work, const BatchChange& change);
bool StoreWord(BatchWork& work, const BatchChange& change);
bool StoreFlag(BatchWork& work, const BatchChange& change);
bool StoreMessage(BatchWork& work, const BatchChange& change);
bool StoreProcessEntry(BatchWork& work, const BatchChange& change);
bool StorePicture(BatchWork& work, const BatchChange& change);
bool StoreSettings(BatchWork& work, const BatchChange& change);

/// Whether a picture that is named lies in the game's folder; tells it otherwise.
bool CheckPictureFile(BatchWork& work, const BatchChange& change, std::string_view field);

}  // namespace fabula::authoring
