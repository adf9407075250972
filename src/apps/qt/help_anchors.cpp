#include "qt/help_anchors.h"

namespace fabula::qt {
namespace {

struct Anchor {
    const char* page;
    const char* control;
    const char* anchor;
};

constexpr Anchor kAnchors[] = {
    {"frmbothmessages.html", "text", "txtmessage"},
    {"frmbothmessages.html", "step", "updown1"},
    {"frmbothmessages.html", "update", "cmdupdate"},
    {"frmbothmessages.html", "exit", "cmdexit"},
    {"frmcolors.html", "colour", "lblcolor"},
    {"frmcolors.html", "current", "lblcurrent"},
    {"frmcolors.html", "update", "cmdupdate"},
    {"frmcolors.html", "exit", "cmdexit"},
    {"frmdebug.html", "request", "txtinput"},
    {"frmdebug.html", "result", "lblresult"},
    {"frmflags.html", "type", "cboflgtype"},
    {"frmflags.html", "use", "cboflguse"},
    {"frmflags.html", "description", "txtflgdesc"},
    {"frmflags.html", "update", "cmdupdate"},
    {"frmflags.html", "exit", "cmdexit"},
    {"frmkeychange.html", "table", "cbotable"},
    {"frmkeychange.html", "key", "txtkey"},
    {"frmkeychange.html", "process", "txtprocess"},
    {"frmkeychange.html", "w1", "txtw1"},
    {"frmkeychange.html", "w2", "txtw2"},
    {"frmkeychange.html", "select", "cmdselect"},
    {"frmkeychange.html", "rows", "lstrows"},
    {"frmkeychange.html", "finish", "cmdfinish"},
    {"frmkeychange.html", "exit", "cmdexit"},
    {"frmsetup.html", "type", "opttype"},
    {"frmsetup.html", "fabula", "optfabula"},
    {"frmsetup.html", "vel", "optvel"},
    {"frmsetup.html", "marlo", "optmarlo"},
    {"frmsetup.html", "graphic", "optgraphic"},
    {"frmsetup.html", "nonGraphic", "optnongraphic"},
    {"frmsetup.html", "charSetsYes", "optcharsetyes"},
    {"frmsetup.html", "charSetsNo", "optcharsetno"},
    {"frmsetup.html", "execute", "cmdexecute"},
    {"frmsrcimport.html", "kind", "optkind"},
    {"frmsrcimport.html", "source", "txtsource"},
    {"frmsrcimport.html", "chooseSource", "cmdsource"},
    {"frmsrcimport.html", "encoding", "cboencoding"},
    {"frmsrcimport.html", "database", "txtdatabase"},
    {"frmsrcimport.html", "chooseDatabase", "cmddatabase"},
    {"frmsrcimport.html", "status", "txtstatus"},
    {"frmsrcimport.html", "start", "cmdimport"},
    {"frmsrcimport.html", "print", "cmdprint"},
    {"frmsrcimport.html", "exit", "cmdexit"},
    {"frmveladvsettings.html", "name", "txtadventurename"},
    {"frmveladvsettings.html", "author", "txtauthor"},
    {"frmveladvsettings.html", "saveName", "txtsavename"},
    {"frmveladvsettings.html", "version", "txtversion"},
    {"frmveladvsettings.html", "startPlace", "cbostartloc"},
    {"frmveladvsettings.html", "maxObjects", "txtmaxobjects"},
    {"frmveladvsettings.html", "maxWeight", "txtmaxweight"},
    {"frmveladvsettings.html", "printWidth", "cboprintwidth"},
    {"frmveladvsettings.html", "paper", "lblbackcolor"},
    {"frmveladvsettings.html", "ink", "lbltextcolor"},
    {"frmveladvsettings.html", "font", "cbofont"},
    {"frmveladvsettings.html", "fontSize", "cbofontsize"},
    {"frmveladvsettings.html", "defaultPicture", "txtdefaultpicture"},
    {"frmveladvsettings.html", "choosePicture", "cmdgetpic"},
    {"frmveladvsettings.html", "clearPicture", "cmdclearpic"},
    {"frmveladvsettings.html", "aboutPicture", "txtaboutpicture"},
    {"frmveladvsettings.html", "chooseAboutPicture", "cmdgetabout"},
    {"frmveladvsettings.html", "clearAboutPicture", "cmdclearabout"},
    {"frmveladvsettings.html", "description", "txtadvdesc"},
    {"frmveladvsettings.html", "contactInfo", "txtcontactinfo"},
    {"frmveladvsettings.html", "type", "cboadventype"},
    {"frmveladvsettings.html", "graphics", "chkgraphics"},
    {"frmveladvsettings.html", "charSets", "chkcharsets"},
    {"frmveladvsettings.html", "graphicsInDb", "chkgraphicsindb"},
    {"frmveladvsettings.html", "sound", "chksound"},
    {"frmveladvsettings.html", "device", "cbodevice"},
    {"frmveladvsettings.html", "channel", "cbochannel"},
    {"frmveladvsettings.html", "voice", "cbovoice"},
    {"frmveladvsettings.html", "volume", "sldvolume"},
    {"frmveladvsettings.html", "balance", "sldbalance"},
    {"frmveladvsettings.html", "bass", "sldbass"},
    {"frmveladvsettings.html", "testVoice", "cmdtestvoice"},
    {"frmveladvsettings.html", "source", "cbosource"},
    {"frmveladvsettings.html", "update", "cmdupdate"},
    {"frmveladvsettings.html", "exit", "cmdexit"},
    {"frmvelcondact.html", "recordKey", "lblreckey"},
    {"frmvelcondact.html", "process", "txttype"},
    {"frmvelcondact.html", "verb", "cboword1"},
    {"frmvelcondact.html", "noun", "cboword2"},
    {"frmvelcondact.html", "condAct", "cboca"},
    {"frmvelcondact.html", "parameter1", "cboparam1"},
    {"frmvelcondact.html", "parameter2", "cboparam2"},
    {"frmvelcondact.html", "add", "cmdadd"},
    {"frmvelcondact.html", "line", "txtallcas"},
    {"frmvelcondact.html", "update", "cmdupdate"},
    {"frmvelcondact.html", "exit", "cmdexit"},
    {"frmvelengmain.html", "playerWindow", "frmvelengmain"},
    {"frmvelengmain.html", "status", "txtstatus"},
    {"frmvelengmain.html", "command", "lblcommand"},
    {"frmvelengmain.html", "location", "lbllocation"},
    {"frmvellocation.html", "description", "txtdescription"},
    {"frmvellocation.html", "shortDescription", "txtshortdesc"},
    {"frmvellocation.html", "exits", "txtexits"},
    {"frmvellocation.html", "exitWord", "cboexit"},
    {"frmvellocation.html", "exitPlace", "cboloc"},
    {"frmvellocation.html", "andBack", "chkandback"},
    {"frmvellocation.html", "add", "cmdadd"},
    {"frmvellocation.html", "choosePicture", "cmdgetpic"},
    {"frmvellocation.html", "update", "cmdupdate"},
    {"frmvellocation.html", "exit", "cmdexit"},
    {"frmvelobjects.html", "description", "txtdescription"},
    {"frmvelobjects.html", "noun", "cboobjword"},
    {"frmvelobjects.html", "adjective", "cboadjective"},
    {"frmvelobjects.html", "initialPlace", "optinitialloc"},
    {"frmvelobjects.html", "room", "cboinroom"},
    {"frmvelobjects.html", "weight", "txtweight"},
    {"frmvelobjects.html", "container", "chkcontainer"},
    {"frmvelobjects.html", "wearable", "chkwearremove"},
    {"frmvelobjects.html", "update", "cmdupdate"},
    {"frmvelobjects.html", "exit", "cmdexit"},
    {"frmvelvocabulary.html", "word", "txtword"},
    {"frmvelvocabulary.html", "type", "opttype"},
    {"frmvelvocabulary.html", "number", "txtwordnum"},
    {"frmvelvocabulary.html", "update", "cmdupdate"},
    {"frmvelvocabulary.html", "exit", "cmdexit"},
    {"frmverify.html", "status", "txtstatus"},
    {"frmverify.html", "goTo", "cmdgoto"},
    {"frmverify.html", "ok", "cmdok"},
    {"frmverify.html", "print", "cmdprint"},
};

QString WithoutNumber(QString name) {
    while (!name.isEmpty() && name.back().isDigit())
        name.chop(1);
    return name;
}

}  // namespace

QString AnchorOf(const QString& page, const QString& control) {
    for (const QString& name : {control, WithoutNumber(control)}) {
        for (const Anchor& each : kAnchors) {
            if (page == each.page && name == each.control) return each.anchor;
        }
    }
    return control.toLower();
}

}  // namespace fabula::qt
