#include "qt/qt_programs.h"

#include <QDesktopServices>
#include <QProcess>
#include <QUrl>

#include "platform/error.h"
#include "qt/strings.h"

namespace fabula::qt {
namespace {

using platform::ProgramEnd;

constexpr int kTurn = 40;  ///< milliseconds between two questions whether it goes on
/// How long a program that was asked to end may take, in milliseconds.
constexpr int kPatience = 1000;

QStringList Arguments(const std::vector<std::string>& arguments) {
    QStringList list;
    for (const std::string& argument : arguments)
        list << ToQt(argument);
    return list;
}

void TakeErrors(QProcess& process, std::string& errors) {
    const std::string more = process.readAllStandardError().toStdString();
    errors += more.substr(0, platform::Programs::kMostErrors - errors.size());
}

void End(QProcess& process) {
    process.terminate();
    if (process.waitForFinished(kPatience)) return;
    process.kill();
    process.waitForFinished();
}

}  // namespace

ProgramEnd QtPrograms::Run(const platform::ProgramCall& call, const std::function<bool()>& goesOn) {
    QProcess process;
    process.setProgram(PathToQt(call.program));
    process.setArguments(Arguments(call.arguments));
    process.setWorkingDirectory(PathToQt(call.folder));
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(PathToQt(call.output), QIODevice::Truncate);
    process.start();
    if (!process.waitForStarted())
        throw Error("Could not start " + call.program.string() + ": " + FromQt(process.errorString()) +
                    ".");
    ProgramEnd end;
    // `goesOn` lets events be handled, so that the end may be noticed there too.
    while (!process.waitForFinished(kTurn) && process.state() != QProcess::NotRunning) {
        TakeErrors(process, end.errors);
        if (goesOn()) continue;
        End(process);
        end.how = ProgramEnd::How::Stopped;
        break;
    }
    TakeErrors(process, end.errors);
    if (end.how == ProgramEnd::How::Stopped) return end;
    if (process.exitStatus() == QProcess::CrashExit) {
        end.how = ProgramEnd::How::Crashed;
    } else {
        end.status = process.exitCode();
    }
    return end;
}

bool QtPrograms::ShowText(const std::filesystem::path& file) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(PathToQt(file)));
}

}  // namespace fabula::qt
