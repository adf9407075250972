#include "qt/help_folder.h"

#include <fstream>

namespace fabula::test {

HelpFolder::HelpFolder() {
    Write("contents.html",
          "<html><head><title>Contents</title></head><body><h1>Contents</h1><ul>"
          "<li><a href=\"first.html\">A first game</a></li>"
          "<li><a href=\"frmvelidemain.html\">Screens</a><ul>"
          "<li><a href=\"frmvellocation.html\">Location</a></li>"
          "<li><a href=\"frmvelvocabulary.html\">Word</a></li></ul></li>"
          "<li><a href=\"flags.html\">Flags</a><ul>"
          "<li><a href=\"flags.html#f10\">Lamp</a></li></ul></li></ul></body></html>");
    Write("first.html",
          "<html><head><title>A first game</title></head><body><p>Light the lamp.</p></body></html>");
    Write(
        "frmvelidemain.html",
        "<html><head><title>Main window</title></head><body><p>The lamp, a lamp, LAMP.</p></body></html>");
    Write("frmvellocation.html",
          "<html><head><title>Location</title></head><body><h1>Location</h1>"
          "<h2><a name=\"txtexits\"></a>Exits</h2><p>One row for each exit.</p>"
          "<h2 id='cmdadd'>Add</h2></body></html>");
    Write("frmvelvocabulary.html",
          "<html><head><title>Word</title></head><body><p>A word of the game.</p></body></html>");
    Write("flags.html",
          "<html><head><title>Flags</title></head><body><h2><a name=\"f10\"></a>Lamp</h2></body></html>");
}

void HelpFolder::Write(const char* name, std::string_view html) const {
    std::ofstream(folder_ / name) << html;
}

}  // namespace fabula::test
