#include "listings/pages/print_preview.h"

#include <algorithm>
#include <array>
#include <utility>

#include "listings/pages/outputs.h"

namespace fabula::listings {
namespace {

constexpr std::array<int, 8> kSizes = {25, 50, 75, 100, 125, 150, 200, 300};
constexpr std::size_t kFirstSize = 3;

}  // namespace

PrintPreview::PrintPreview(PrintJob job, store::Adventure& adventure)
    : job_(std::move(job)), adventure_(adventure), size_(kFirstSize) {}

void PrintPreview::Run() {
    paper_ = PaperListing(*job_.report, job_.request, adventure_);
    page_ = 1;
}

void PrintPreview::GoTo(int page) {
    page_ = std::clamp(page, 1, PageCount());
}

int PrintPreview::Percent() const {
    return kSizes.at(size_);
}

void PrintPreview::Plus() {
    if (CanGrow()) ++size_;
}

void PrintPreview::Minus() {
    if (CanShrink()) --size_;
}

bool PrintPreview::CanGrow() const {
    return size_ + 1 < kSizes.size();
}

bool PrintPreview::CanShrink() const {
    return size_ > 0;
}

}  // namespace fabula::listings
