#include "engine/output/trace_file.h"

#include <cstdio>
#include <cstdlib>

#include "platform/error.h"
#include "store/extensions.h"
#include "store/file/file_copy.h"
#include "text/format.h"

namespace fabula::engine {

std::string TraceFileName(const platform::DateTime& begun) {
    char name[80];
    std::snprintf(name, sizeof name, "TRC%04d%02d%02d_%02d%02d%02d", begun.year, begun.month, begun.day,
                  begun.hour, begun.minute, begun.second);
    return std::string(name).append(store::extension::kTrace);
}

std::string TraceHeader(const std::filesystem::path& adventure, const platform::DateTime& begun) {
    std::string header = adventure.string();
    header +=
        text::FormatText(" !%z4!-!%z2!-!%z2! !%z2!:!%z2!:!%z2",
                         {begun.year, begun.month, begun.day, begun.hour, begun.minute, begun.second});
    if (const char* computer = std::getenv("COMPUTER")) header.append(" ").append(computer);
    return header;
}

TraceFile::TraceFile(const std::filesystem::path& file, std::string_view header) : file_(file) {
    store::CheckTarget(file, store::Content::Text, store::extension::kTrace);
    stream_.open(file, std::ios::binary | std::ios::trunc);
    WriteLine(header);
    if (!stream_.flush()) throw Error("Could not write the trace " + file.string() + ".");
}

void TraceFile::Finish() {
    stream_.close();
    if (!stream_) throw Error("Could not write all of the trace " + file_.string() + ".");
}

void TraceFile::WriteLine(std::string_view line) {
    stream_ << line << '\n';
}

}  // namespace fabula::engine
