// Qualifier trees: display text, encoding both ways, API records and evaluation.
#include <map>
#include <random>
#include <string>

#include "support/TempHome.h"
#include "vxutil/decimal/TKErrorHandlers.h"
#include "vxutil/foundation/CVXArithOpStruct.h"
#include "vxutil/foundation/CVXFieldValueLookup.h"
#include "vxutil/foundation/CVXQualifierStruct.h"
#include "vxutil/gnrt/CGNAssert.h"

namespace {

using QualifierTest = vx::test::HomeTest;
using Operand = CVXQualifierOperand;
using Q = CVXQualifierStruct;

Operand Int(int value) {
    CVXValueStruct v;
    v.SetInteger(value);
    return Operand::Value(v);
}
Operand Real(double value) {
    CVXValueStruct v;
    v.SetReal(value);
    return Operand::Value(v);
}
Operand Dec(const char* text) {
    CVXValueStruct v;
    v.SetDecimal(text);
    return Operand::Value(v);
}
Operand Chr(const char* text) {
    CVXValueStruct v;
    v.SetChar(text);
    return Operand::Value(v);
}
Operand Null() {
    return Operand::Value(CVXValueStruct());
}
Q Rel(std::uint32_t op, const Operand& a, const Operand& b) {
    return Q::Relation(CVXRelOpStruct(op, a, b));
}
Operand Arith(std::uint32_t op, const Operand& a, const Operand& b) {
    return Operand::Arithmetic(CVXArithOpStruct(op, a, b));
}

std::string Text(const Q& q) {
    CGNString text;
    q.ToText(text);
    return text.str();
}
std::string Encoded(const Q& q) {
    CGNString text;
    return q.Encode(text) ? text.str() : "(fails)";
}

class Fields : public CVXFieldValueLookup {
public:
    const CVXValueStruct* FindFieldValue(std::uint32_t id) const override {
        auto found = values.find(id);
        return found != values.end() ? &found->second : nullptr;
    }
    std::map<std::uint32_t, CVXValueStruct> values;
};

TEST_F(QualifierTest, DisplayAndEncodedTexts) {
    const Q seven = Rel(VX_REL_OP_EQUAL, Operand::Field(7), Int(5));
    struct {
        Q qualifier;
        const char* text;
        const char* encoded;
    } const cases[] = {
        {Q(), "", "0"},
        {seven, "(7 = 5) ", "4\\1\\1\\7\\2\\2\\5"},
        {Q::Not(seven), " NOT (7 = 5)  ", "3\\4\\1\\1\\7\\2\\2\\5"},
        {Q::And(seven, Rel(VX_REL_OP_LIKE, Operand::Field(8), Chr("a%"))),
         "(7 = 5)  AND (8 LIKE \"a%\")  ", "1\\4\\1\\1\\7\\2\\2\\5\\4\\7\\1\\8\\2\\4\\2\\a%"},
        {Q::Or(Rel(VX_REL_OP_NOT_EQUAL, Operand::Field(1), Null()), Q()), "(1 != $NULL$)  OR  ",
         "2\\4\\6\\1\\1\\2\\0\\0"},
        {Rel(VX_REL_OP_GREATER_EQUAL, Operand::Field(3, VX_FIELD_CURRENT), Real(1.5)),
         "(3 >= 1.500000) ", "4\\3\\99\\3\\2\\3\\1.5"},
        {Rel(VX_REL_OP_LESS, Operand::NumberPair(3, 4), Operand::Field(2, VX_FIELD_DATABASE)),
         "( < 2) ", "4\\4\\4\\3l\\4\\51\\2"},
        {Rel(VX_REL_OP_LESS_EQUAL, Arith(VX_ARITH_OP_NEGATE, Operand(), Operand::Field(4)),
             Arith(VX_ARITH_OP_MODULO, Int(7), Int(2))),
         "( <= ) ", "4\\5\\3\\6\\1\\4\\3\\5\\2\\2\\7\\2\\2\\2"},
        // Field ids from 2^31 up show as the 32-bit client shows them.
        {Rel(VX_REL_OP_EQUAL, Operand::Field(3000000000u), Int(1)), "(-1294967296 = 1) ",
         "4\\1\\1\\3000000000\\2\\2\\1"},
    };
    const auto quiet = CGNAssert::SetHandler([](const char*, int, const char*) {});
    for (const auto& c : cases) {
        EXPECT_EQ(Text(c.qualifier), c.text) << c.encoded;
        EXPECT_EQ(Encoded(c.qualifier), c.encoded);
        Q decoded;
        const char* cursor = c.encoded;
        ASSERT_TRUE(decoded.Decode(cursor)) << c.encoded;
        EXPECT_EQ(Encoded(decoded), c.encoded);
    }
    CGNAssert::SetHandler(quiet);
}

TEST_F(QualifierTest, DecodesOddCodesAndRefusesBrokenText) {
    struct {
        const char* text;
        const char* encoded;  // of the decoded tree; null when decoding fails
    } const cases[] = {
        {"(null)", "0"},
        {"0", "0"},
        {"4\\9\\77\\7\\2\\2\\5",
         "4\\1\\1\\7\\2\\2\\5"},  // operator 9 reads as " = ", tag 77 as a field
        {"4\\1\\1\\7", nullptr},
        {"4", nullptr},
        {"1\\4\\1\\1\\7\\2\\2\\5", nullptr},  // AND without its right side
        {"4\\1\\5\\1\\2\\2\\5", nullptr},     // an unsupported operand kind
        {"9\\1", nullptr},
    };
    for (const auto& c : cases) {
        Q decoded;
        const char* cursor = c.text;
        ASSERT_EQ(decoded.Decode(cursor), c.encoded != nullptr) << c.text;
        if (c.encoded != nullptr) {
            EXPECT_EQ(Encoded(decoded), c.encoded) << c.text;
        }
    }
}

// Hostile or corrupt text may nest far deeper than any stack: every walk over the tree works
// at any depth, and its texts grow linearly with it.
TEST_F(QualifierTest, DeepTreesWorkAtAnyDepth) {
    constexpr int kDepth = 200000;
    const std::string leaf = "4\\1\\1\\7\\2\\2\\5";  // (7 = 5)
    std::string encoded;
    for (int i = 0; i < kDepth; ++i)
        encoded += i % 2 == 0 ? "3\\" : "1\\" + leaf + "\\";  // NOT, and AND with a leaf
    encoded += leaf;
    Q deep;
    const char* cursor = encoded.c_str();
    ASSERT_TRUE(deep.Decode(cursor));
    EXPECT_EQ(Encoded(deep), encoded);
    std::string text;
    for (int i = 0; i < kDepth / 2; ++i)
        text += " NOT (7 = 5)  AND ";
    text += "(7 = 5) ";
    for (int i = 0; i < kDepth / 2; ++i)
        text += "  ";
    EXPECT_EQ(Text(deep), text);

    Fields fields;
    fields.values[7].SetInteger(5);
    bool result = false;
    ASSERT_TRUE(deep.Evaluate(&fields, result));
    EXPECT_TRUE(result);  // an even number of NOTs over true leaves

    Q copy = deep;
    copy = *copy.GetNot();  // from inside its own tree
    EXPECT_EQ(Encoded(copy), encoded.substr(2));
    VXQualifierStruct record{};
    ASSERT_TRUE(deep.CopyTo(record));
    const Q back(record);
    Q::FreeRecord(record);
    EXPECT_EQ(Encoded(back), encoded);

    // Arithmetic nests through operands; beyond any written formula it is refused cleanly.
    std::string formula = "4\\1\\";
    for (int i = 0; i < kDepth; ++i)
        formula += "3\\1\\";  // an arithmetic operand: add, then its left operand
    cursor = formula.c_str();
    EXPECT_FALSE(deep.Decode(cursor));
}

TEST_F(QualifierTest, RecordsAreDeepCopies) {
    const Q tree = Q::And(Q::Not(Rel(VX_REL_OP_EQUAL, Operand::Field(7), Chr("x"))),
                          Rel(VX_REL_OP_GREATER, Arith(VX_ARITH_OP_ADD, Operand::Field(1), Int(2)),
                              Operand::NumberPair(1, 2)));
    VXQualifierStruct record{};
    ASSERT_TRUE(tree.CopyTo(record));
    EXPECT_EQ(record.operation, VX_COND_AND);
    EXPECT_EQ(*record.u.andor.left->u.notQual->u.relOp->operand1.u.fieldId, 7u);
    const Q back(record);
    CVXQualifierStruct::FreeRecord(record);
    EXPECT_EQ(Encoded(back), Encoded(tree));
}

struct EvalCase {
    Q qualifier;
    int expected;  // 1 true, 0 false, -1 cannot be evaluated
};

TEST_F(QualifierTest, Evaluates) {
    Fields fields;
    fields.values[1].SetInteger(10);
    fields.values[2].SetChar("Help desk");
    fields.values[3].SetDecimal("10.00");
    fields.values[4].SetReal(2.5);
    fields.values[5].SetNull();
    const Operand f1 = Operand::Field(1), f2 = Operand::Field(2), f3 = Operand::Field(3),
                  f4 = Operand::Field(4), f5 = Operand::Field(5);
    const EvalCase cases[] = {
        {Q(), 1},
        {Rel(VX_REL_OP_EQUAL, f1, f3), 1},  // integer and decimal, numerically
        {Rel(VX_REL_OP_EQUAL, f1, Real(10.0)), 1},
        {Rel(VX_REL_OP_GREATER, f4, Dec("2.49")), 1},
        {Rel(VX_REL_OP_LESS_EQUAL, f1, Int(9)), 0},
        {Rel(VX_REL_OP_EQUAL, f2, Chr("help desk")), 0},  // case-sensitive
        {Rel(VX_REL_OP_LESS, f2, Chr("Help e")), 1},
        {Rel(VX_REL_OP_EQUAL, f5, Null()), 1},
        {Rel(VX_REL_OP_EQUAL, f1, Null()), 0},
        {Rel(VX_REL_OP_NOT_EQUAL, f1, Null()), 1},
        {Rel(VX_REL_OP_GREATER, f5, Null()), 0},
        {Rel(VX_REL_OP_LIKE, f2, Chr("Help%")), 1},
        {Rel(VX_REL_OP_LIKE, f2, Chr("help%")), 0},
        {Rel(VX_REL_OP_EQUAL, f1, Chr("10")), -1},  // texts and numbers do not compare
        {Rel(VX_REL_OP_EQUAL, Operand::Field(99), Int(1)), -1},
        {Rel(VX_REL_OP_IN, f1, Int(1)), -1},
        {Q::And(Rel(VX_REL_OP_EQUAL, f1, Int(10)), Rel(VX_REL_OP_EQUAL, f1, Int(11))), 0},
        {Q::Or(Rel(VX_REL_OP_EQUAL, f1, Int(10)), Rel(VX_REL_OP_EQUAL, f1, Int(11))), 1},
        {Q::Not(Rel(VX_REL_OP_EQUAL, f1, Int(10))), 0},
        {Rel(VX_REL_OP_EQUAL, Arith(VX_ARITH_OP_ADD, f1, Int(5)), Int(15)), 1},
        {Rel(VX_REL_OP_EQUAL, Arith(VX_ARITH_OP_DIVIDE, f1, Int(4)), Int(2)), 1},
        {Rel(VX_REL_OP_EQUAL, Arith(VX_ARITH_OP_MODULO, f1, Int(4)), Int(2)), 1},
        {Rel(VX_REL_OP_EQUAL, Arith(VX_ARITH_OP_MULTIPLY, f4, Int(2)), Int(5)), 1},
        {Rel(VX_REL_OP_EQUAL, Arith(VX_ARITH_OP_DIVIDE, f3, Int(4)), Dec("2.5")), 1},
        {Rel(VX_REL_OP_EQUAL, Arith(VX_ARITH_OP_MODULO, Dec("-7.5"), Int(2)), Dec("-1.5")), 1},
        {Rel(VX_REL_OP_EQUAL, Arith(VX_ARITH_OP_NEGATE, Operand(), f1), Int(-10)), 1},
        {Rel(VX_REL_OP_EQUAL, Arith(VX_ARITH_OP_SUBTRACT, f1, f4), Real(7.5)), 1},
        {Rel(VX_REL_OP_EQUAL, Arith(VX_ARITH_OP_DIVIDE, f1, Int(0)), Int(0)), -1},
        {Rel(VX_REL_OP_EQUAL, Arith(VX_ARITH_OP_MULTIPLY, Int(65536), Int(65536)), Int(0)), -1},
    };
    const auto quiet = CGNAssert::SetHandler([](const char*, int, const char*) {});
    const TKErrorHandler quietDecimals = TKSetErrorHandler([](const TKxmsg&) {});
    for (const EvalCase& c : cases) {
        bool result = false;
        const bool evaluated = c.qualifier.Evaluate(&fields, result);
        EXPECT_EQ(evaluated ? static_cast<int>(result) : -1, c.expected) << Encoded(c.qualifier);
    }
    TKSetErrorHandler(quietDecimals);
    CGNAssert::SetHandler(quiet);
}

TEST_F(QualifierTest, LikePatterns) {
    struct {
        const char* text;
        const char* pattern;
        bool matches;
    } const cases[] = {
        {"abc", "abc", true},
        {"abc", "ab", false},
        {"abc", "a%", true},
        {"abc", "%c", true},
        {"abc", "%b%", true},
        {"abc", "%", true},
        {"", "%", true},
        {"", "_", false},
        {"abc", "a_c", true},
        {"abc", "a__c", false},
        {"abc", "[a-c]bc", true},
        {"dbc", "[a-c]bc", false},
        {"abc", "[^x]bc", true},
        {"xbc", "[^x]bc", false},
        {"a[c", "a[c", true},
        {"mississippi", "%iss%ppi", true},
        {"mississippi", "%iss%x", false},
        {"ABC", "abc", false},
#ifndef _WIN32  // a character of the client's character set, not a byte
        {"\xC3\xA9t\xC3\xA9", "_t_", true},
#endif
    };
    Fields fields;
    for (const auto& c : cases) {
        fields.values[1].SetChar(c.text);
        bool result = false;
        ASSERT_TRUE(
            Rel(VX_REL_OP_LIKE, Operand::Field(1), Chr(c.pattern)).Evaluate(&fields, result));
        EXPECT_EQ(result, c.matches) << c.text << " LIKE " << c.pattern;
    }
}

// A random tree of every node and operand kind that has an encoded text.
Operand RandomOperand(std::mt19937& random, int depth) {
    switch (random() % (depth > 0 ? 6 : 5)) {
        case 0:
            return Operand::Field(random() % 1000, VX_FIELD);
        case 1:
            return Operand::Field(random() % 1000, VX_FIELD_TRANSACTION + random() % 2);
        case 2:
            return Int(static_cast<int>(random()));
        case 3:
            return Chr(std::string(random() % 5, "ab\\ 1"[random() % 5]).c_str());
        case 4:
            return Operand::NumberPair(random() % 100, random() % 100);
        default:
            return Arith(random() % 6, RandomOperand(random, depth - 1),
                         RandomOperand(random, depth - 1));
    }
}

Q RandomTree(std::mt19937& random, int depth) {
    switch (random() % (depth > 0 ? 5 : 2)) {
        case 0:
            return Q();
        case 1:
            return Rel(random() % 8, RandomOperand(random, 2), RandomOperand(random, 2));
        case 2:
            return Q::Not(RandomTree(random, depth - 1));
        case 3:
            return Q::And(RandomTree(random, depth - 1), RandomTree(random, depth - 1));
        default:
            return Q::Or(RandomTree(random, depth - 1), RandomTree(random, depth - 1));
    }
}

TEST_F(QualifierTest, RandomTreesEncodeDecodeAndEncodeToTheSameText) {
    const auto quiet = CGNAssert::SetHandler([](const char*, int, const char*) {});
    std::mt19937 random(20261122);
    for (int i = 0; i < 1000; ++i) {
        const Q tree = RandomTree(random, 4);
        const std::string first = Encoded(tree);
        Q decoded;
        const char* cursor = first.c_str();
        ASSERT_TRUE(decoded.Decode(cursor)) << first;
        EXPECT_EQ(Encoded(decoded), first);
        EXPECT_EQ(Text(decoded), Text(tree));
    }
    CGNAssert::SetHandler(quiet);
}

}  // namespace
