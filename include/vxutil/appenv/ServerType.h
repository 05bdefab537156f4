// One server of a user, as the accounts dialog edits it and CAppEnv::SetServerList writes it to
// the user's server file.
#pragma once

#include <vector>

#include "vxutil/gnrt/CGNString.h"

struct tagSERVERTYPE {
    CGNString m_strName;
    unsigned char m_bDisabled = 0;  // written as a "#" before the name
    unsigned char m_bWorkflow = 0;  // the user logs in to it as a workflow server ("VX")
    unsigned char m_bNotifier = 0;  // ... and as a notifier server ("NT")
    // Port values as the user typed them; empty when not configured.
    CGNString m_strWorkflowPort;
    CGNString m_strWorkflowRpc;
    CGNString m_strNotifierPort;
};

// The server records of one user, in list order. The framework's typed pointer list is replaced by
// a plain vector of pointers so that the core needs no GUI framework; as with that list, the
// caller owns the records and the list only borrows them. Null entries are skipped.
using ServerTypeList = std::vector<tagSERVERTYPE*>;
