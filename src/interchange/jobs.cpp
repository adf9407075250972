#include "interchange/jobs.h"

#include "pictures/files/room_bitmaps.h"
#include "platform/error.h"
#include "platform/whole_file.h"
#include "store/create.h"
#include "store/file/file_copy.h"
#include "text/encoding/bad_bytes.h"
#include "text/str_edit.h"

namespace fabula::interchange {
namespace {

using store::Adventure;
using store::Cursor;
using store::TableNum;

JobResult ResultOf(bool done, const JobStatus& status) {
    return {done, status.Faults(), status.Losses(), status.Text(), status.AllFaults(), {}};
}

void SetSaveName(Adventure& adventure, const std::filesystem::path& target) {
    Cursor& settings = adventure.OpenTable(TableNum::Adventure, "def");
    settings.SetField("savename", text::WithoutBadBytes(target.stem().string()));
    settings.Update();
}

/// Before the source is read, which may know better.
void ApplyLook(Adventure& adventure, const ImportedSettings& imported) {
    if (!imported.setsLook) return;
    Cursor& settings = adventure.OpenTable(TableNum::Adventure, "def");
    settings.SetField("BackColor", std::int64_t{imported.backColour});
    settings.SetField("textcolor", std::int64_t{imported.textColour});
    settings.SetField("defprintwidth", std::int64_t{imported.printWidth});
    settings.Update();
}

void ApplySource(Adventure& adventure, const ImportedSettings& imported) {
    Cursor& settings = adventure.OpenTable(TableNum::Adventure, "def");
    settings.SetField("source", std::string(imported.source));
    settings.Update();
    Cursor& system = adventure.OpenTable(TableNum::System, "def");
    system.SetField("flagchange", std::int64_t{imported.flagChange});
    system.Update();
}

/// Builds the new adventure in `file`; false when the reader refused its source.
bool Build(const FileKind& kind, const std::filesystem::path& source, const std::filesystem::path& file,
           const std::filesystem::path& target, const JobHost& host, JobStatus& status, SourceMap& places) {
    store::CreateAdventure(file, kind.setup(source),
                           {host.person, host.clock, host.events, host.defaultData});
    const auto adventure = Adventure::Open(file);
    store::Transaction transaction(*adventure);
    SetSaveName(*adventure, target);
    ImportContext context{source, *adventure, host.person, status, host.encoding, &places};
    ApplyLook(*adventure, kind.settings);
    if (!kind.read(context)) return false;
    ApplySource(*adventure, kind.settings);
    transaction.Commit();
    return true;
}

/// A game that is drawn gets the bitmaps that are shown of its pictures, beside the new file.
void SavePictures(const std::filesystem::path& target, JobStatus& status) {
    const auto adventure = Adventure::Open(target);
    for (const std::string& fault : pictures::SaveRoomBitmaps(*adventure).faults)
        status.AddLoss(fault);
}

bool IsBlankPath(const std::filesystem::path& path) {
    return text::StrEdit(path.string(), "trim").empty();
}

}  // namespace

JobResult ImportIt(const FileKind& kind, const std::filesystem::path& source,
                   const std::filesystem::path& target, const JobHost& host) {
    JobStatus status(host.observer);
    if (IsBlankPath(source)) {
        host.person.Tell(kNoSourceFile, "Error");
        return ResultOf(false, status);
    }
    if (store::IsSameFile(source, target))
        throw Error("Could not write " + target.string() + ": it is the source itself.");
    store::CheckTarget(target, store::Content::Adventure);
    platform::CheckIsFile(source, "read " + source.string());
    status.AddToStatus("CLS");
    status.AddToStatusCR("Creating default database for " + target.string());
    status.AddToStatusCR("This will take a few minutes.");
    const store::TemporaryFile making(target);
    bool done = false;
    SourceMap places;
    try {
        done = Build(kind, source, making.Path(), target, host, status, places);
        if (done) store::MoveIntoPlace(making.Path(), target);
        if (done && kind.savesPictures) SavePictures(target, status);
    } catch (const JobCancelled&) {
        status.AddToStatusCR("Import cancelled");
    } catch (const TooManyFaults&) {
        status.AddToStatusCR("Too many errors. Import aborted.");
    } catch (const Error&) {
        status.AddToStatusCR("Deleting bad database");
        throw;
    }
    if (done) {
        host.person.Tell(source.filename().string() + " Loaded", "Fabula");
    } else {
        status.AddToStatusCR("Deleting bad database");
    }
    JobResult result = ResultOf(done, status);
    result.places = std::move(places);
    return result;
}

JobResult ExportIt(const FileKind& kind, Adventure& adventure, const std::filesystem::path& target,
                   const Verifier& verify, const JobHost& host, const std::string& version) {
    JobStatus status(host.observer);
    status.AddToStatus("CLS");
    if (IsBlankPath(target)) {
        host.person.Tell(kNoSourceFile, "Error");
        return ResultOf(false, status);
    }
    try {
        const bool passed = verify(adventure, kind, status);
        ExportContext context{adventure, target, host.person, status, version};
        const bool done = passed && kind.write(context);
        return ResultOf(done, status);
    } catch (const JobCancelled&) {
        status.AddToStatusCR("Export cancelled");
        return ResultOf(false, status);
    }
}

}  // namespace fabula::interchange
