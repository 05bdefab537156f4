// The catalogue of the decimal subsystem's messages: bracketed texts, each with its domain and
// number. The first word in brackets is the message key; "%s" in the arithmetic messages takes
// the name of the operation's type. Numbers rise by one from each domain's base in the order
// of its entries.
#pragma once

#include <cstdint>
#include <span>

#include "vxutil/export.h"

struct TKMessage {
    const char* domain;
    std::uint32_t number;
    const char* text;
};

// Decimal arithmetic.
namespace tkdcml {
inline constexpr const char* kDomain = "tkdcml";
inline constexpr TKMessage kFromDblOver{kDomain, 0x3800,
                                        "[FROMDBLOVER] %s: overflow converting from double (%g)"};
inline constexpr TKMessage kFromDblInexact{
    kDomain, 0x3801, "[FROMDBLINEXACT] %s: inexact result converting from double (%g)"};
inline constexpr TKMessage kFromPortOver{
    kDomain, 0x3802, "[FROMPORTOVER] %s: overflow converting from portable decimal"};
inline constexpr TKMessage kFromPortInexact{
    kDomain, 0x3803, "[FROMPORTINEXACT] %s: inexact result converting from portable decimal"};
inline constexpr TKMessage kAssignOver{kDomain, 0x3804, "[ASSIGNOVER] %s: overflow in assignment"};
inline constexpr TKMessage kAddOver{kDomain, 0x3805, "[ADDOVER] %s: overflow in addition"};
inline constexpr TKMessage kSubOver{kDomain, 0x3806, "[SUBOVER] %s: overflow in subtraction"};
inline constexpr TKMessage kMulOver{kDomain, 0x3807, "[MULOVER] %s: overflow in multiplication"};
inline constexpr TKMessage kDivOver{kDomain, 0x3808, "[DIVOVER] %s: overflow in division"};
inline constexpr TKMessage kAddInexact{kDomain, 0x3809,
                                       "[ADDINEXACT] %s: inexact result in addition"};
inline constexpr TKMessage kSubInexact{kDomain, 0x380A,
                                       "[SUBINEXACT] %s: inexact result in subtraction"};
inline constexpr TKMessage kMulInexact{kDomain, 0x380B,
                                       "[MULINEXACT] %s: inexact result in multiplication"};
inline constexpr TKMessage kDivInexact{kDomain, 0x380C,
                                       "[DIVINEXACT] %s: inexact result in division"};
inline constexpr TKMessage kPowRange{kDomain, 0x380D, "[POWRANGE] %s: power out of range (%d>%u)"};
inline constexpr TKMessage kFormatsDiff{
    kDomain, 0x380E, "[FORMATSDIFF]: positive and negative TKDecimalFormat attributes differ"};
}  // namespace tkdcml

// Streams and memory.
namespace tkcore {
inline constexpr const char* kDomain = "tkcore7.0";
inline constexpr TKMessage kEof{kDomain, 0x1000, "[EOF] EOF on input"};
inline constexpr TKMessage kGeneric{kDomain, 0x1001, "[GENERIC] Generic error number %d; %s"};
inline constexpr TKMessage kInvAddr{kDomain, 0x1002, "[INVADDR] Invalid address: %lx"};
inline constexpr TKMessage kLock{kDomain, 0x1003, "[LOCK] Unable to lock memory"};
inline constexpr TKMessage kNoInit{kDomain, 0x1004,
                                   "[NOINIT] Memory allocated without being initialized"};
inline constexpr TKMessage kNoMem{kDomain, 0x1005, "[NOMEM] No memory"};
inline constexpr TKMessage kOpErr{kDomain, 0x1006, "[OPERR] Could not open file %s"};
inline constexpr TKMessage kOutAlloc{
    kDomain, 0x1007, "[OUTALLOC] Memory released with allocations still outstanding"};
inline constexpr TKMessage kOvFlow{kDomain, 0x1008,
                                   "[OVFLOW] Overflow error -> \"%.*s\" <- (%u max characters)"};
inline constexpr TKMessage kStream{kDomain, 0x1009, "[STREAM] Bad input stream"};
inline constexpr TKMessage kSynStream{
    kDomain, 0x100A, "[SYNSTREAM] Syntax error in input stream: expected %s, got %s"};
}  // namespace tkcore

// Collections, strings and persistence.
namespace tktools {
inline constexpr const char* kDomain = "tktools7.0";
inline constexpr TKMessage kAllocOut{kDomain, 0x2000,
                                     "[ALLOCOUT] %s destructor called with allocation outstanding"};
inline constexpr TKMessage kBadRe{kDomain, 0x2001,
                                  "[BADRE] Attempt to use invalid regular expression"};
inline constexpr TKMessage kCrAbs{
    kDomain, 0x2002, "[CRABS] TKFactory: attempting to create abstract class with ID %hu (0x%hx)"};
inline constexpr TKMessage kFList{kDomain, 0x2003,
                                  "[FLIST] Free list size error: expected %ld, got %ld"};
inline constexpr TKMessage kId{kDomain, 0x2004, "[ID] Unexpected class ID %hu; should be %hu"};
inline constexpr TKMessage kIndex{kDomain, 0x2005, "[INDEX] Index (%u) out of range [0->%u]"};
// The key LOCK also names tkcore::kLock, a different message; both keep it.
inline constexpr TKMessage kLock{kDomain, 0x2006, "[LOCK] Locked object deleted"};
inline constexpr TKMessage kLongIndex{kDomain, 0x2007,
                                      "[LONGINDEX] Long index (%lu) out of range [0->%lu]"};
inline constexpr TKMessage kMagic{kDomain, 0x2008, "[MAGIC] Bad magic number: %ld (should be %ld)"};
inline constexpr TKMessage kNeVecL{kDomain, 0x2009,
                                   "[NEVECL] Unequal vector lengths: %u versus %u"};
inline constexpr TKMessage kNoCreate{
    kDomain, 0x200A, "[NOCREATE] TKFactory: no create function for class with ID %hu (0x%hx)"};
inline constexpr TKMessage kNotAllow{kDomain, 0x200B,
                                     "[NOTALLOW] Function not allowed for derived class"};
inline constexpr TKMessage kReadErr{kDomain, 0x200C, "[READERR] Read error"};
inline constexpr TKMessage kRef{kDomain, 0x200D, "[REF] Bad persistence reference"};
inline constexpr TKMessage kSeekErr{kDomain, 0x200E, "[SEEKERR] Seek error"};
// Shares its text with tkcore::kStream.
inline constexpr TKMessage kStream{kDomain, 0x200F, tkcore::kStream.text};
inline constexpr TKMessage kSubString{
    kDomain, 0x2010, "[SUBSTRING] Illegal substring (%d, %u) from %u element TKCString"};
inline constexpr TKMessage kUnlock{kDomain, 0x2011, "[UNLOCK] Improper use of locked object"};
inline constexpr TKMessage kWriteErr{kDomain, 0x2012, "[WRITEERR] Write error"};
inline constexpr TKMessage kIndexErr{
    kDomain, 0x2013, "[INDEXERR] Illegal Index (%u) for collection or string with %u elements"};
inline constexpr TKMessage kNPosIndex{kDomain, 0x2014,
                                      "[NPOSINDEX] The value TK_NPOS cannot be used as an index."};
inline constexpr TKMessage kNoPersist{kDomain, 0x2015,
                                      "[NOPERSIST] Persistence not implemented for type %s."};
inline constexpr TKMessage kCrAbsS{
    kDomain, 0x2016, "[CRABSS] TKFactory: attempting to create abstract class with StringID %s."};
}  // namespace tktools

// Every entry of the three domains, each domain in number order.
VXUTIL_API std::span<const TKMessage* const> TKMessageCatalogue();
// The entry with `number` in `domain`, or null.
VXUTIL_API const TKMessage* TKFindMessage(const char* domain, std::uint32_t number);
