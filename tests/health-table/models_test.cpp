#include <gtest/gtest.h>

#include "tests/support/stored.h"

TEST(HealthDisplays, ShowEveryModelInFull) {
    ExpectModelsAsStored("health-table");
}
