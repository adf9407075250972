#pragma once

#include <filesystem>

#include "qt/translator.h"

namespace fabula::test {

/// Where "translations/fabula_eo.qm" of the test's language lies (pseudo_language.py).
inline std::filesystem::path PseudoLanguageFolder() {
    return FABULA_PSEUDO_LANGUAGE;
}

/// While it lives, the windows speak the test's language.
class PseudoLanguage {
  private:
    qt::Translations translations_{{PseudoLanguageFolder()}, QLocale("eo")};
};

}  // namespace fabula::test
