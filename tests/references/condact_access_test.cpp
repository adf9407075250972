#include "references/condact_access.h"

#include <set>
#include <string>

#include <gtest/gtest.h>

#include "condacts/language/load.h"
#include "lighthouse.h"

namespace fabula::references {
namespace {

using condacts::CondAct;
using condacts::ParamKind;
using Names = std::set<std::string>;

class CondActAccesses : public testing::Test {
  protected:
    /// The names of the conditions and actions of a game of which something is true.
    template <typename Told>
    Names NamesWhich(Told told) const {
        Names names;
        for (const CondAct& condAct : catalogue_.All()) {
            if (told(condAct)) names.insert(condAct.name);
        }
        return names;
    }
    Names Of(Flow flow) const {
        return NamesWhich([flow](const CondAct& each) { return FlowOf(each.name) == flow; });
    }

    std::unique_ptr<store::Adventure> game_ = test::Lighthouse();
    condacts::Catalogue catalogue_ = condacts::LoadCatalogue(*game_);
};

TEST_F(CondActAccesses, TellHowFlagsComeToTheirNumbers) {
    EXPECT_EQ(Of(Flow::Counts), (Names{"PLUS", "MINUS", "ADD", "SUB", "RANDOM", "AUTOINC", "AUTODEC"}));
    EXPECT_EQ(Of(Flow::Measures), (Names{"COPYOF", "WEIGH", "WEIGHT"}));
    EXPECT_EQ(Of(Flow::Walks), Names{"MOVE"});
    EXPECT_EQ(Of(Flow::Copies), Names{"COPYFF"});
    EXPECT_EQ(Of(Flow::Compares), (Names{"SAME", "NOTSAME"}));
}

TEST_F(CondActAccesses, ComputeIntoAParameterThatIsAFlag) {
    for (const CondAct& condAct : catalogue_.All()) {
        const CondActAccess* access = FindCondActAccess(condAct.name);
        const int computes = access ? access->computes : 0;
        if (computes == 0) continue;
        EXPECT_EQ(condAct.params.at(static_cast<std::size_t>(computes) - 1).kind, ParamKind::Flag)
            << condAct.name;
    }
}

TEST_F(CondActAccesses, SayOfAllThatComputesWhereTheNumberComesFrom) {
    for (const CondAct& condAct : catalogue_.All()) {
        const CondActAccess* access = FindCondActAccess(condAct.name);
        if (access == nullptr || access->flow == Flow::Compares) continue;
        EXPECT_EQ(access->computes != 0, access->flow != Flow::None) << condAct.name;
    }
}

TEST_F(CondActAccesses, KnowTheActionsThatEndATable) {
    const auto ends = NamesWhich([](const CondAct& each) { return EndsTable(each.name); });
    EXPECT_EQ(ends, (Names{"DONE", "NOTDONE", "OK", "DESC", "RESET", "END"}));
    for (const std::string& name : ends)
        EXPECT_TRUE(catalogue_.Find(name)->isAction) << name;
}

}  // namespace
}  // namespace fabula::references
