#include "vxutil/decimal/TKMessage.h"

#include <cstring>

namespace {

constexpr const TKMessage* kCatalogue[] = {
    &tkdcml::kFromDblOver,  &tkdcml::kFromDblInexact,
    &tkdcml::kFromPortOver, &tkdcml::kFromPortInexact,
    &tkdcml::kAssignOver,   &tkdcml::kAddOver,
    &tkdcml::kSubOver,      &tkdcml::kMulOver,
    &tkdcml::kDivOver,      &tkdcml::kAddInexact,
    &tkdcml::kSubInexact,   &tkdcml::kMulInexact,
    &tkdcml::kDivInexact,   &tkdcml::kPowRange,
    &tkdcml::kFormatsDiff,  &tkcore::kEof,
    &tkcore::kGeneric,      &tkcore::kInvAddr,
    &tkcore::kLock,         &tkcore::kNoInit,
    &tkcore::kNoMem,        &tkcore::kOpErr,
    &tkcore::kOutAlloc,     &tkcore::kOvFlow,
    &tkcore::kStream,       &tkcore::kSynStream,
    &tktools::kAllocOut,    &tktools::kBadRe,
    &tktools::kCrAbs,       &tktools::kFList,
    &tktools::kId,          &tktools::kIndex,
    &tktools::kLock,        &tktools::kLongIndex,
    &tktools::kMagic,       &tktools::kNeVecL,
    &tktools::kNoCreate,    &tktools::kNotAllow,
    &tktools::kReadErr,     &tktools::kRef,
    &tktools::kSeekErr,     &tktools::kStream,
    &tktools::kSubString,   &tktools::kUnlock,
    &tktools::kWriteErr,    &tktools::kIndexErr,
    &tktools::kNPosIndex,   &tktools::kNoPersist,
    &tktools::kCrAbsS,
};

}  // namespace

std::span<const TKMessage* const> TKMessageCatalogue() {
    return kCatalogue;
}

const TKMessage* TKFindMessage(const char* domain, std::uint32_t number) {
    if (domain == nullptr) return nullptr;
    for (const TKMessage* message : kCatalogue) {
        if (message->number == number && std::strcmp(message->domain, domain) == 0) return message;
    }
    return nullptr;
}
