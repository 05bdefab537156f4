// The library's built-in string table: the English texts, compiled in.
#pragma once

namespace vx {

// Numbers of the library's strings.
enum StringId : unsigned {
    kStrFolderMissingCreate = 3055,
    kStrFolderCreateFailed = 3056,
    kStrFolderCopyFailed = 3057,
    // Messages of the number cells of the list controls: a number outside the cell's range (the
    // text, the range in decimal, then in hexadecimal), and a refused private RPC number.
    kStrNumberOutOfRange = 3060,
    kStrPrivateRpcNumber = 3061,
    // The dialog bar's right-click menu.
    kStrDialogBarFont = 3070,
    kStrDialogBarBackground = 3071,
    // The login dialog.
    kStrLoginCaption = 3150,
    kStrLoginUserNameLabel = 3151,
    kStrLoginPasswordLabel = 3152,
    kStrLoginAccountsButton = 3153,
    kStrLoginOkButton = 3154,
    kStrLoginCancelButton = 3155,
    kStrLoginFieldTooLong = 3156,
    // Labels of the about box's system information.
    kStrLargestFreeBlock = 3401,
    kStrSwapSpaceSize = 3402,
    kStrUserHeap = 3403,
    kStrWinsockVersion = 3404,
    kStrMaxSockets = 3405,
    kStrMaxDatagram = 3406,
    kStrSocketDescription = 3407,
    kStrSocketStatus = 3408,
    kStrResourceVersion = 3409,
    // Range messages of the foundation classes: the refused text, then the lowest and the
    // highest value allowed.
    kStrDateOutOfRange = 25248,
    kStrTimeOutOfRange = 25249,
    kStrDateTimeOutOfRange = 25263,
};

// The built-in text of string `id`, or null when the table has none.
const char* BuiltInString(unsigned id);

}  // namespace vx
