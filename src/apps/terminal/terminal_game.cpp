#include "terminal/terminal_game.h"

#include <thread>

#include "engine/diagnostics.h"
#include "engine/engine.h"
#include "platform/random_source.h"

namespace fabula::terminal {
namespace {

using engine::Waiting;

const std::string kDebugHelp =
    ":F38 or :O3 views a flag or an object, :38 one of the same kind. :S sets the flag in view to 255, :C "
    "to 0; "
    ":=5 gives it a value, or the object a location.";

constexpr engine::PaneMeasures kPanes{.breaksLines = true};

engine::WindowParts PartsOf(TerminalWindow& window, const PlayOptions& options) {
    engine::WindowParts parts = window.Parts();
    parts.origins = options.origins;
    parts.measures = &kPanes;
    return parts;
}

class TerminalGame {
  public:
    TerminalGame(store::Adventure& adventure, TerminalWindow& window, Screen& screen,
                 const PlayOptions& options)
        : window_(window),
          screen_(screen),
          options_(options),
          random_(options.seed ? *options.seed : platform::UnpredictableSeed()),
          engine_(adventure, {window, window, random_, sound_, options.trace, PartsOf(window, options)},
                  {.traceFile = options.trace != nullptr}),
          debug_(engine_) {}

    bool Play() {
        engine_.Initialize();
        window_.Check();
        while (engine_.WaitingFor() != Waiting::Nothing && !window_.InputEnded() && Step())
            window_.Check();
        screen_.Finish();
        window_.Check();
        return !engine_.HasFailed();
    }

  private:
    /// Brings what the game waits for. False at the end of the input.
    bool Step() {
        if (engine_.WaitingFor() == Waiting::Pause) {
            PassPause();
        } else if (engine_.WaitingFor() == Waiting::File) {
            const auto file = window_.AskForFile(engine_.FileAsked());
            Play([&] { engine_.GiveFile(file); });
        } else {
            return StepInput();
        }
        return true;
    }

    void PassPause() {
        if (options_.realTime) {
            screen_.Show();
            std::this_thread::sleep_for(window_.Wait());
        }
        Play([this] { engine_.WaitTick(); });
    }

    /// A step in which the engine may go on with a script: its lines are then shown.
    template <typename EngineStep>
    void Play(EngineStep step) {
        window_.SetPlaying(engine_.PlaysScript());
        step();
        window_.SetPlaying(false);
    }

    bool StepInput() {
        const bool sentence = engine_.WaitingFor() == Waiting::Sentence;
        const auto prompt = promptAgain_ ? Screen::Prompt::Again : Screen::Prompt::Own;
        promptAgain_ = false;
        const TypedLine line =
            screen_.ReadLine(prompt, sentence, options_.realTime ? window_.TimeOut() : std::nullopt);
        if (line.kind == TypedLine::Kind::End) return false;
        if (line.kind == TypedLine::Kind::TimeOut) {
            PassTimeOut();
        } else {
            Take(line.text, sentence);
        }
        return true;
    }

    void Take(const std::string& line, bool sentence) {
        if (options_.debug && line.starts_with(':')) {
            Debug(std::string_view(line).substr(1));
        } else if (line.empty() && window_.NextEnabled()) {
            PlayNext();
        } else if (!sentence || !line.empty()) {
            engine_.EnterLine(line);
        } else if (window_.TimeOut() && !options_.realTime) {
            PassTimeOut();
        } else {
            promptAgain_ = true;
        }
    }

    void Debug(std::string_view request) {
        const engine::Diagnostics::Answer answer = debug_.DoIt(request);
        screen_.Say(!answer.refusal.empty() ? answer.refusal
                    : answer.help           ? kDebugHelp
                                            : debug_.DisplayVariable());
        promptAgain_ = true;
    }

    void PlayNext() {
        window_.SetPlaying(true);
        engine_.DoNextScript();
        window_.SetPlaying(false);
    }

    void PassTimeOut() {
        window_.TimeOutPassed();
        engine_.TimeOutTick();
    }

    TerminalWindow& window_;
    Screen& screen_;
    const PlayOptions& options_;
    platform::SeededRandom random_;
    engine::SilentPlayer sound_;
    engine::Engine engine_;
    engine::Diagnostics debug_;
    bool promptAgain_ = false;
};

}  // namespace

bool PlayInTerminal(store::Adventure& adventure, TerminalWindow& window, Screen& screen,
                    const PlayOptions& options) {
    return TerminalGame(adventure, window, screen, options).Play();
}

}  // namespace fabula::terminal
