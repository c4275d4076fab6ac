#include "embedded/Plan.h"
#include "embedded/bind/LongStatements.h"
#include "embedded/engine/ScratchCatalog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

namespace kavelin::embedded {
namespace {

// `./run bench front-end` measures them well below a millisecond; the bound is for slow machines, and for
// builds with the sanitizers.
TEST(FrontEndTime, TheLongestStatementsTakeLessThan20Milliseconds)
{
    using Clock = std::chrono::steady_clock;
    ScratchCatalog catalog({}, {}, "zh-CN");
    const std::string tables = TablesOfLongStatements();
    for (const StatementPtr& statement : ParseBatch(tables))
        catalog.Apply(Translate(*statement, tables, catalog.View()).changes);

    for (const LongStatement& statement : LongStatements()) {
        Clock::duration best = Clock::duration::max();
        for (int attempt = 0; attempt < 5; ++attempt) {
            const auto start = Clock::now();
            const StatementPlan plan =
                Translate(*ParseBatch(statement.text).front(), statement.text, catalog.View());
            best = std::min(best, Clock::now() - start);
            EXPECT_FALSE(plan.steps.empty()) << statement.name;
        }
        EXPECT_LT(best, std::chrono::milliseconds(20)) << statement.name;
    }
}

}  // namespace
}  // namespace kavelin::embedded
