#include "lighthouse.h"

#include "interchange/file_kinds.h"
#include "interchange/jobs.h"
#include "platform/clock.h"
#include "platform/event_pump.h"
#include "support/doubles/scripted_person.h"
#include "support/places.h"
#include "support/temp_folder.h"

namespace fabula::test {
namespace {

std::unique_ptr<store::Adventure> Import() {
    const TempFolder folder;
    platform::ScriptedPerson person;
    platform::SystemClock clock;
    platform::NoEvents events;
    interchange::NoObserver observer;
    const interchange::JobHost host{person, clock, events, observer,
                                    SourceFolder() / "data" / "Fabula.ini"};
    interchange::ImportIt(*interchange::FindFileKind("ace"),
                          SourceFolder() / "examples" / "lighthouse" / "lighthouse.txt",
                          folder / "lighthouse.fbd", host);
    return store::Adventure::Open(folder / "lighthouse.fbd")->CopyInMemory();
}

}  // namespace

std::unique_ptr<store::Adventure> Lighthouse() {
    static const std::unique_ptr<store::Adventure> imported = Import();
    return imported->CopyInMemory();
}

}  // namespace fabula::test
