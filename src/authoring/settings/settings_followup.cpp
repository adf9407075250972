#include "authoring/settings/settings_followup.h"

#include <string>
#include <vector>

#include "authoring/fields/picture_choice.h"
#include "condacts/numbers.h"
#include "platform/error.h"
#include "store/query/cursor.h"
#include "text/str_edit.h"

namespace fabula::authoring {
namespace {

using store::Adventure;
using store::Cursor;
using store::TableNum;

constexpr std::string_view kTitle = "Adventure Settings";

/// The fields of one picture.
struct PictureFields {
    std::string_view path;
    std::string_view bytes;
    std::string_view oldPath;  ///< the path at the latest copy; a blank when there is none
};

constexpr PictureFields kLocationPicture = {"picloc", "picgraphic", "oldpicloc"};
constexpr PictureFields kDefaultPicture = {"defpicloc", "defpicgraphic", "olddefpicloc"};
constexpr PictureFields kAboutPicture = {"advpicloc", "advpicgraphic", "oldadvpicloc"};

std::string AllOf(const PictureFields& fields) {
    return std::string(fields.path) + ", " + std::string(fields.bytes) + ", " + std::string(fields.oldPath);
}

bool Has(const Adventure& adventure, TableNum table, const PictureFields& fields) {
    return adventure.Schema(table).Find(fields.path).has_value();
}

/// Copies pictures into the adventure, and keeps why some could not be read.
class PictureCopies {
  public:
    explicit PictureCopies(ScreenContext& context)
        : context_(context), adventure_(context.document.Adventure()) {}

    void CopyOfSettings() {
        Copy(adventure_.OpenTable(TableNum::Adventure, AllOf(kDefaultPicture)), kDefaultPicture,
             "Default picture");
        if (!Has(adventure_, TableNum::Adventure, kAboutPicture)) return;
        Copy(adventure_.OpenTable(TableNum::Adventure, AllOf(kAboutPicture)), kAboutPicture,
             "About picture");
    }

    void CopyOfLocations() {
        for (const condacts::PlaceNumber location : Locations(kLocationPicture.path)) {
            Copy(OpenLocation(location), kLocationPicture, "Location " + std::to_string(location.value));
        }
    }

    void ForgetCopies() {
        for (const condacts::PlaceNumber location : Locations(kLocationPicture.oldPath))
            Forget(OpenLocation(location), kLocationPicture);
        Forget(adventure_.OpenTable(TableNum::Adventure, AllOf(kDefaultPicture)), kDefaultPicture);
        if (!Has(adventure_, TableNum::Adventure, kAboutPicture)) return;
        Forget(adventure_.OpenTable(TableNum::Adventure, AllOf(kAboutPicture)), kAboutPicture);
    }

    void ReportFaults() const {
        if (faults_.empty()) return;
        context_.dialogs.Report("These pictures could not be copied into the adventure:\n" + faults_,
                                kTitle);
    }

  private:
    /// The locations that have something in a field. Their pictures stay in the file until each one's turn.
    std::vector<condacts::PlaceNumber> Locations(std::string_view field) {
        store::PreparedQuery row = adventure_.Prepare(TableNum::Locations, "locnum, " + std::string(field),
                                                      std::string(field) + "<>''", "locnum");
        std::vector<condacts::PlaceNumber> locations;
        for (bool more = row.First({}); more; more = row.Next()) {
            if (!text::TrimBlanks(row.Text(1)).empty())
                locations.emplace_back(static_cast<int>(row.Number(0)));
        }
        return locations;
    }

    Cursor& OpenLocation(condacts::PlaceNumber location) {
        return adventure_.OpenTable(TableNum::Locations, AllOf(kLocationPicture),
                                    "locnum=" + std::to_string(location.value));
    }

    void Copy(Cursor& record, const PictureFields& fields, const std::string& whose) {
        const std::string path(text::TrimBlanks(record.Text(fields.path)));
        if (path.empty() || path == text::TrimBlanks(record.Text(fields.oldPath))) return;
        try {
            record.StoreFileInField(PictureFile(context_, path), fields.bytes, fields.oldPath);
        } catch (const Error& error) {
            faults_ += "\n" + whose + ": " + error.what();
            return;
        }
        record.SetField(fields.oldPath, path);
        record.Update();
    }

    static void Forget(Cursor& record, const PictureFields& fields) {
        record.SetField(fields.oldPath, std::string(" "));
        record.Update();
    }

    ScreenContext& context_;
    Adventure& adventure_;
    std::string faults_;
};

void FollowPictures(ScreenContext& context, const SettingsBefore& before, const SettingsBefore& now) {
    if (!now.graphicsInDb && !before.graphicsInDb) return;
    PictureCopies copies(context);
    Change change(context.document, Change::WithLatest{});
    if (now.graphicsInDb) {
        copies.CopyOfSettings();
        const bool switched = now.graphics != before.graphics || !before.graphicsInDb;
        if (switched) copies.CopyOfLocations();
    } else {
        copies.ForgetCopies();
    }
    change.Commit();
    copies.ReportFaults();
}

}  // namespace

SettingsBefore ReadSettingsBefore(Document& document) {
    store::PreparedQuery settings =
        document.Adventure().Prepare(TableNum::Adventure, "graphics, charsets, graphicsindb", "");
    SettingsBefore before{.changes = document.Changes()};
    if (!settings.First({})) return before;
    before.graphics = settings.Number(0) != 0;
    before.charSets = settings.Number(1) != 0;
    before.graphicsInDb = settings.Number(2) != 0;
    return before;
}

bool FollowSettings(ScreenContext& context, const SettingsBefore& before) {
    const SettingsBefore now = ReadSettingsBefore(context.document);
    if (now.changes == before.changes) return true;
    try {
        FollowPictures(context, before, now);
    } catch (const Error& error) {
        // The settings are stored, and what else follows from them holds.
        Refuse(context.dialogs, error.what());
    }
    if (now.charSets == before.charSets) return true;
    context.dialogs.Tell("Changing Character Sets requires exiting program", kTitle);
    return false;
}

}  // namespace fabula::authoring
