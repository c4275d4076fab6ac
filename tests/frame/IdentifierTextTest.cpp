#include "frame/IdentifierText.h"

#include <gtest/gtest.h>

namespace kavelin {
namespace {

TEST(IdentifierText, KeepsLettersDigitsAndUnderscoresOnly)
{
    EXPECT_EQ(IdentifierText("pc-1.local"), "pc_1_local");
    EXPECT_EQ(IdentifierText("]drop"), "_drop");
    EXPECT_EQ(IdentifierText(""), "client");
}

}  // namespace
}  // namespace kavelin
