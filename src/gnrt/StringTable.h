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
    // The folder cells of the list controls: the browse button and the folder dialog's title.
    kStrBrowseFolder = 3080,
    kStrSelectFolder = 3081,
    // The accounts dialog: pane titles, column headers, the fixed rows, messages, menus.
    kStrAccountsUsers = 3100,
    kStrAccountsServers = 3101,
    kStrAccountsUserColumn = 3102,
    kStrAccountsFolderColumn = 3103,
    kStrAccountsServerColumn = 3104,
    kStrAccountsWorkflowColumn = 3105,
    kStrAccountsNotifierColumn = 3106,
    kStrAccountsWorkflowPortColumn = 3107,
    kStrAccountsRpcColumn = 3108,
    kStrAccountsNotifierPortColumn = 3109,
    kStrAccountsAddUser = 3110,
    kStrAccountsDefaultUser = 3111,
    kStrAccountsAddServer = 3112,
    kStrAccountsAskRemoveUser = 3113,
    kStrAccountsAskRemoveServers = 3114,
    kStrAccountsRelativeFolder = 3115,
    kStrAccountsFolderRenameFailed = 3116,
    kStrAccountsStoreFailed = 3117,
    kStrAccountsBadServerName = 3118,
    kStrAccountsMenuEditServer = 3120,
    kStrAccountsMenuDeleteServer = 3121,
    kStrAccountsMenuConnectAtLogin = 3122,
    kStrAccountsMenuProperties = 3123,
    kStrAccountsMenuWorkflowServer = 3124,
    kStrAccountsMenuNotifierServer = 3125,
    kStrAccountsMenuEditPorts = 3126,
    kStrAccountsMenuEditWorkflowPort = 3127,
    kStrAccountsMenuEditNotifierPort = 3128,
    kStrAccountsMenuEditUser = 3129,
    kStrAccountsMenuEditFolder = 3130,
    kStrAccountsMenuDeleteUser = 3131,
    kStrAccountsServerProperties = 3132,
    kStrAccountsYes = 3133,
    kStrAccountsNo = 3134,
    kStrAccountsDefaultPort = 3135,
    kStrAccountsCaption = 3136,
    kStrAccountsAdvancedOptions = 3137,
    // The login dialog.
    kStrLoginCaption = 3150,
    kStrLoginUserNameLabel = 3151,
    kStrLoginPasswordLabel = 3152,
    kStrLoginAccountsButton = 3153,
    kStrLoginOkButton = 3154,
    kStrLoginCancelButton = 3155,
    kStrLoginFieldTooLong = 3156,
    // The login dialog's password reveal action and Caps Lock hint.
    kStrLoginShowPassword = 3170,
    kStrLoginHidePassword = 3171,
    kStrLoginCapsLockOn = 3172,
    // The about box: the caption before the product's name, the version line, the label of the
    // system information.
    kStrAboutCaption = 3180,
    kStrAboutVersion = 3181,
    kStrAboutSystemInfo = 3182,
    // The buttons of the library's questions, and the note of the answer a prompt without a
    // user took (the label of the default button).
    kStrButtonOk = 3190,
    kStrButtonCancel = 3191,
    kStrButtonAbort = 3192,
    kStrButtonRetry = 3193,
    kStrButtonIgnore = 3194,
    kStrButtonYes = 3195,
    kStrButtonNo = 3196,
    kStrButtonTryAgain = 3197,
    kStrButtonContinue = 3198,
    kStrAnswered = 3199,
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
    // The range messages of the foundation's statuses are numbered by CVXStatusList::RangeMessage,
    // which client tools name.
};

// The built-in text of string `id`, or null when the table has none.
const char* BuiltInString(unsigned id);

}  // namespace vx
