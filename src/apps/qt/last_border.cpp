#include "qt/last_border.h"

#include <QEvent>
#include <QPointer>
#include <QWidget>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>

#include "platform/error.h"
#include "qt/strings.h"

namespace fabula::qt {
namespace {

/// For what is thrown and is no exception.
constexpr const char* kNameless = "A fault without a name.";

/// What an exception says of itself, in words.
std::string WordsOf(const std::exception& error) {
    if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr)
        return "There is not enough memory for this.";
    return error.what();
}

std::string DoingOf(const QObject* receiver, const QEvent& event) {
    std::string what = "the window was at work";
    switch (event.type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
            what = "a key was pressed";
            break;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
            what = "the mouse was used";
            break;
        case QEvent::Timer:
            what = "time passed";
            break;
        case QEvent::Paint:
            what = "the window was drawn";
            break;
        default:
            break;
    }
    const auto* widget = qobject_cast<const QWidget*>(receiver);
    const QString title = widget != nullptr ? widget->window()->windowTitle() : QString();
    return title.isEmpty() ? what : what + " in \"" + FromQt(title) + "\"";
}

}  // namespace

std::optional<bool> LastBorder::Run(const std::function<bool()>& work,
                                    const std::function<std::string()>& doing) {
    try {
        const bool result = work();
        if (!telling_) inARow_ = 0;
        return result;
    } catch (const std::exception& error) {
        Tell(WordsOf(error), doing);
    } catch (...) {
        Tell(kNameless, doing);
    }
    return std::nullopt;
}

void LastBorder::Tell(const std::string& what, const std::function<std::string()>& doing) {
    if (telling_ || ++inARow_ > kMostInARow) {
        std::fputs(("A fault came again and again, so the program ends: " + what + "\n").c_str(), stderr);
        return end_(EXIT_FAILURE);
    }
    telling_ = true;
    const std::string kept = Kept();
    try {
        dialogs_.Tell(
            "Something failed while " + doing() + ": " + what + (kept.empty() ? "" : "\n\n" + kept),
            "Error");
    } catch (const std::exception& error) {
        EndUntold(what, WordsOf(error));
    } catch (...) {
        EndUntold(what, kNameless);
    }
    telling_ = false;
}

void LastBorder::EndUntold(const std::string& what, const std::string& why) {
    std::fputs((what + "\nThis could not be shown: " + why + "\n").c_str(), stderr);
    end_(EXIT_FAILURE);
}

std::string LastBorder::Kept() {
    try {
        return keep_();
    } catch (const std::exception& error) {
        return "A copy of the work could not be kept: " + WordsOf(error);
    } catch (...) {
        return std::string("A copy of the work could not be kept: ") + kNameless;
    }
}

Program::Program(int& argc, char** argv) : QApplication(argc, argv) {}

int Program::Run(LastBorder& border) {
    border_ = &border;
    const int status = exec();
    border_ = nullptr;
    return status;
}

bool Program::notify(QObject* receiver, QEvent* event) {
    if (border_ == nullptr) return QApplication::notify(receiver, event);
    const auto deliver = [this, receiver, event] { return QApplication::notify(receiver, event); };
    // A receiver may be gone when its event has failed.
    const QPointer<QObject> kept(receiver);
    const auto doing = [&kept, event] { return DoingOf(kept.data(), *event); };
    return border_->Run(deliver, doing).value_or(true);
}

int RunProgram(const char* name, const std::function<int()>& body) {
    const std::string failed = "Something failed while the program began: ";
    std::string sentence;
    try {
        return body();
    } catch (const Error& error) {
        sentence = error.what();
    } catch (const std::exception& error) {
        sentence = failed + WordsOf(error);
    } catch (...) {
        sentence = failed + kNameless;
    }
    std::fputs((std::string(name) + ": " + sentence + "\n").c_str(), stderr);
    return EXIT_FAILURE;
}

}  // namespace fabula::qt
