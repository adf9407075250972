#include "store/file/connection.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace fabula::store {
namespace {

struct Switch {
    const char* name;
    int option;
    int wanted;
};

class EveryConnection : public testing::TestWithParam<Switch> {};

TEST_P(EveryConnection, HoldsWhatFilesOfStrangersMayNotDo) {
    const Connection connection(":memory:", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    int set = -1;
    ASSERT_EQ(sqlite3_db_config(connection.Handle(), GetParam().option, -1, &set), SQLITE_OK);
    EXPECT_EQ(set, GetParam().wanted);
}

INSTANTIATE_TEST_SUITE_P(Switches, EveryConnection,
                         testing::Values(Switch{"Defensive", SQLITE_DBCONFIG_DEFENSIVE, 1},
                                         Switch{"TrustedSchema", SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
                                         Switch{"Triggers", SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
                                         Switch{"Views", SQLITE_DBCONFIG_ENABLE_VIEW, 0},
                                         Switch{"Extensions", SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0},
                                         Switch{"TextInDoubleQuotes", SQLITE_DBCONFIG_DQS_DML, 0}),
                         [](const auto& given) { return given.param.name; });

}  // namespace
}  // namespace fabula::store
