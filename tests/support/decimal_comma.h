#pragma once

#include <string>

#include "support/temp_folder.h"

namespace fabula::test {

/// The numbers of the C library are written with a comma, as on a desktop that counts so, while this lives.
/// No other thread may run meanwhile.
class DecimalComma {
  public:
    DecimalComma();
    DecimalComma(const DecimalComma&) = delete;
    DecimalComma& operator=(const DecimalComma&) = delete;
    ~DecimalComma();

  private:
    TempFolder folder_;
    std::string before_;
};

}  // namespace fabula::test
