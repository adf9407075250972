#include "engine/game.h"

#include "engine/actions/auto_flags.h"

namespace fabula::engine {

namespace {

constexpr int kDefaultBeepPause = 12;

void SetStartFlags(Game& game) {
    const Options& options = game.sitting.options;
    game.SetFlag(flag::kBeepPause, kDefaultBeepPause);
    if (options.traceRequested) game.SetFlag(flag::kTrace, kSet);
    if (options.traceFile) game.SetFlag(flag::kTraceFile, kSet);
    for (const FlagNumber wordFlag :
         {flag::kVerb, flag::kNoun, flag::kAdjective, flag::kAdverb, flag::kPreposition, flag::kNoun2,
          flag::kAdjective2, flag::kPronounNoun, flag::kPronounAdjective}) {
        game.SetFlag(wordFlag, kNoWordNumber.value);
    }
    game.SetFlag(flag::kMaxObjects, game.data.maxObjects);
    game.SetFlag(flag::kMaxWeight, game.data.maxWeight);
    game.SetFlag(flag::kLocation, game.data.startLocation.value);
    game.SetFlag(flag::kScript, game.sitting.script.State());
    game.SetFlag(flag::kDescribe, kSet);
}

void PlaceObjects(Game& game) {
    for (const ObjectNumber object : game.state.Objects()) {
        game.state.SetObjectPlace(object, game.data.Object(object).startPlace);
        if (game.IsCarried(object)) game.state.Plus(flag::kCarriedCount, 1);
    }
}

GameLook LookOf(const Game& game) {
    return {
        .title = game.data.title,
        .type = game.data.type,
        .characterSets = game.data.characterSets,
        .graphics = game.data.graphics,
        .printWidth = game.data.printWidth,
        .style = game.printer.Style(),
    };
}

}  // namespace

Game::Game(store::Adventure& adventure, Sitting& theSitting)
    : sitting(theSitting),
      host(theSitting.host),
      parts(theSitting.parts),
      reading_(adventure),
      data(adventure),
      texts(adventure, data.type),
      state(data),
      printer(host.window, parts.measures, data, sitting.script),
      trace(host.trace, state),
      runner(*this, sitting.options.condactLimit, sitting.options.slice),
      loop(*this) {
    printer.TellOrigins(host.parts.origins, runner);
    SetStartFlags(*this);
    SetAutoFlags(*this);
    PlaceObjects(*this);
    state.FillHistory();
    if (!IsMarlo()) {
        prompt = texts.SystemMessage(message::kInputPrompt);
        cursor = printer.WithoutMarkup(texts.SystemMessage(message::kCursor));
    }
    parts.events.StartGame(LookOf(*this));
    printer.Clear();
}

}  // namespace fabula::engine
