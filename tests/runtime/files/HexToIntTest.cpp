#include <climits>

#include <gtest/gtest.h>

#include "vxutil/runtime/RUtils.h"

namespace {

TEST(HexToIntTest, ReadsHexadecimalAfter0xElseDecimal) {
    struct Case {
        const char* text;
        int value;
    } cases[] = {
        {" 0x00ff ", 255},
        {"0XFF", 255},
        {"0xAbC", 0xabc},
        {"0x", 0},
        {"0x1g2", 1},  // the first non-digit ends the number
        {"0xg", 0},
        {"0x7fffffff", INT_MAX},
        {"0xffffffff", -1},  // no overflow check: the value wraps at 32 bits
        {"0x100000001", 1},
        {"12abc", 12},
        {"\t42\r\n", 42},
        {"-12", -12},
        {"+7", 7},
        {"x12", 0},
        {"0", 0},
        {"010", 10},  // a leading zero alone does not make it octal or hexadecimal
        {"", 0},
        {"   ", 0},
    };
    for (const Case& c : cases)
        EXPECT_EQ(RHexToInt(c.text), c.value) << '"' << c.text << '"';
}

}  // namespace
