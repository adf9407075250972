// Any text as one of an older listing or source: it is turned into description markup.

#include <cstdint>
#include <string_view>

#include "interchange/pc/pc_text_form.h"
#include "interchange/unmarlo/spectrum_text.h"

using namespace fabula;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    interchange::ConvertUnMarloDesc(text, "0.8.2");
    interchange::ConvertUnMarloDesc(text, "0.9");
    const interchange::PcTextForm form(interchange::kPcSource, text::TagCatalogue({}), nullptr);
    form.FromSource(text);
    form.ToSource(text);
    return 0;
}
