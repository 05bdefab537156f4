#include "gnrt/StringTable.h"

#include <algorithm>
#include <iterator>

namespace vx {
namespace {

struct Entry {
    unsigned id;
    const char* text;
};

// Sorted by id. "%1" and "%2" are insertion points filled by the message code.
constexpr Entry kTable[] = {
    {kStrFolderMissingCreate, "%1\n\nThis folder does not exist - create?"},
    {kStrFolderCreateFailed,
     "%1\n\nError creating folder.  Please verify folder location and security permissions and "
     "try again."},
    {kStrFolderCopyFailed,
     "Error in copying folder '%1' to '%2'.  Unable to copy at least one file.  Please verify "
     "that the paths and privileges are set properly.  Also verify that duplicate files do not "
     "already exist in the target directory, and that the disk is not full."},
    {kStrNumberOutOfRange,
     "Invalid number, %s.\nDecimal numbers have the format of \"1234\".\nHexadecimal numbers have "
     "the format of \"0x1234\".\nPlease enter a valid number.\n\nDecimal range is %d to "
     "%d.\nHexadecimal range is 0x%X to 0x%X."},
    {kStrPrivateRpcNumber,
     "A private server's RPC socket number must be 390600 or in the range of 390680-390694."},
    {kStrDialogBarFont, "Font..."},
    {kStrDialogBarBackground, "Background..."},
    {kStrLoginCaption, "Login"},
    {kStrLoginUserNameLabel, "&User Name:"},
    {kStrLoginPasswordLabel, "&Password:"},
    {kStrLoginAccountsButton, "&Accounts..."},
    {kStrLoginOkButton, "OK"},
    {kStrLoginCancelButton, "Cancel"},
    {kStrLoginFieldTooLong,
     "The user name or the password is too long: each can hold at most 30 characters, fewer "
     "when it contains accented or non-Latin letters."},
    {kStrLargestFreeBlock, "Largest Free Memory Block"},
    {kStrSwapSpaceSize, "Swap Space Size"},
    {kStrUserHeap, "User Heap"},
    {kStrWinsockVersion, "Winsock Version"},
    {kStrMaxSockets, "Max Sockets"},
    {kStrMaxDatagram, "Max Datagram"},
    {kStrSocketDescription, "Description"},
    {kStrSocketStatus, "Status"},
    {kStrResourceVersion, "Resource DLL Version"},
    {kStrDateOutOfRange, "'%s' is not a valid date. Dates must lie between %s and %s."},
    {kStrTimeOutOfRange, "'%s' is not a valid time. Times must lie between %s and %s."},
    {kStrDateTimeOutOfRange,
     "'%s' is not a valid date and time. Values must lie between %s and %s."},
};

static_assert(std::is_sorted(std::begin(kTable), std::end(kTable),
                             [](const Entry& a, const Entry& b) { return a.id < b.id; }),
              "the string table must stay sorted by id for the binary search");

}  // namespace

const char* BuiltInString(unsigned id) {
    const Entry* entry = std::lower_bound(
        std::begin(kTable), std::end(kTable), id,
        [](const Entry& candidate, unsigned wanted) { return candidate.id < wanted; });
    return (entry != std::end(kTable) && entry->id == id) ? entry->text : nullptr;
}

}  // namespace vx
