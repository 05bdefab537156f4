// The server API's qualifier records: a tree of AND, OR and NOT nodes whose leaves compare two
// operands (fields, values or arithmetic over them).
#pragma once

#include <stdint.h>

#include "vxutil/foundation/VXValueRecords.h"

// Node operations, the same in memory and in the encoded text.
enum : uint32_t {
    VX_COND_NONE = 0,
    VX_COND_AND = 1,
    VX_COND_OR = 2,
    VX_COND_NOT = 3,
    VX_COND_OPERATION = 4,
};

// Relational operators (internal codes; the encoded text adds 1).
enum : uint32_t {
    VX_REL_OP_EQUAL = 0,
    VX_REL_OP_GREATER = 1,
    VX_REL_OP_GREATER_EQUAL = 2,
    VX_REL_OP_LESS = 3,
    VX_REL_OP_LESS_EQUAL = 4,
    VX_REL_OP_NOT_EQUAL = 5,
    VX_REL_OP_LIKE = 6,
    VX_REL_OP_IN = 7,
};

// Arithmetic operators (internal codes); VX_ARITH_OP_NEGATE uses the right operand only.
enum : uint32_t {
    VX_ARITH_OP_ADD = 0,
    VX_ARITH_OP_SUBTRACT = 1,
    VX_ARITH_OP_MULTIPLY = 2,
    VX_ARITH_OP_DIVIDE = 3,
    VX_ARITH_OP_MODULO = 4,
    VX_ARITH_OP_NEGATE = 5,
};

// Operand kinds (internal codes, encoded as 1, 2, 3, 4, 5, 50, 51, 52, 53, 99).
enum : uint32_t {
    VX_FIELD = 0,
    VX_VALUE = 1,
    VX_ARITHMETIC = 2,
    VX_NUMBER_PAIR = 3,
    VX_UNSUPPORTED_4 = 4,
    VX_FIELD_TRANSACTION = 5,  // a field id, as VX_FIELD
    VX_FIELD_DATABASE = 6,     // a field id, as VX_FIELD
    VX_UNSUPPORTED_7 = 7,
    VX_UNSUPPORTED_8 = 8,
    VX_FIELD_CURRENT = 9,  // a field id, as VX_FIELD
};

struct VXNumberPair {
    uint32_t first;
    uint32_t second;
};

struct VXArithOpStruct;

struct VXFieldValueOrArithStruct {
    uint32_t tag;
    union {
        uint32_t* fieldId;
        VXValueStruct* value;
        VXArithOpStruct* arithOp;
        VXNumberPair* pair;
    } u;
};

struct VXArithOpStruct {
    uint32_t operation;
    VXFieldValueOrArithStruct operand1;
    VXFieldValueOrArithStruct operand2;
};

struct VXRelOpStruct {
    uint32_t operation;
    VXFieldValueOrArithStruct operand1;
    VXFieldValueOrArithStruct operand2;
};

struct VXQualifierStruct {
    uint32_t operation;
    union {
        struct {
            VXQualifierStruct* left;
            VXQualifierStruct* right;
        } andor;
        VXQualifierStruct* notQual;
        VXRelOpStruct* relOp;
    } u;
};
