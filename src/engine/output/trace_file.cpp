#include "engine/output/trace_file.h"

#include <cstdio>

#include "platform/error.h"
#include "store/extensions.h"
#include "store/file/file_copy.h"

namespace fabula::engine {

std::string TraceFileName(const platform::DateTime& begun) {
    char name[80];
    std::snprintf(name, sizeof name, "TRC%04d%02d%02d_%02d%02d%02d", begun.year, begun.month, begun.day,
                  begun.hour, begun.minute, begun.second);
    return std::string(name).append(store::extension::kTrace);
}

TraceFile::TraceFile(const std::filesystem::path& file, std::string_view header) {
    store::CheckTarget(file, store::Content::Text, store::extension::kTrace);
    stream_.open(file, std::ios::binary | std::ios::trunc);
    WriteLine(header);
    if (!stream_.flush()) throw Error("Could not write the trace " + file.string() + ".");
}

bool TraceFile::Finish() {
    stream_.close();
    return stream_.good();
}

void TraceFile::WriteLine(std::string_view line) {
    stream_ << line << '\n';
}

}  // namespace fabula::engine
