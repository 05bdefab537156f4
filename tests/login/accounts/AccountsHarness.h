// An accounts dialog without a toolkit: the presenter over two fake lists and a fake view, in
// a fresh settings home with a current application, a scripted prompt and a login owner whose
// logged-in servers the test sets.
#pragma once

#include <algorithm>
#include <deque>
#include <filesystem>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "support/TempHome.h"
#include "vxutil/appenv/CAppEnv.h"
#include "vxutil/gnrt/CGNStringList.h"
#include "vxutil/login/AccountsPresenter.h"
#include "vxutil/login/AccountsView.h"
#include "vxutil/login/CLoginOwner.h"
#include "vxutil/login/ListPort.h"
#include "vxutil/platform/RApplication.h"
#include "vxutil/runtime/RUserPrompt.h"

namespace vx::test {

class FakeList : public ListPort {
public:
    int GetRowCount() const override { return static_cast<int>(rows.size()); }
    CGNString GetCellText(int row, int column) const override {
        if (row < 0 || row >= GetRowCount()) return {};
        const auto& cells = rows[static_cast<std::size_t>(row)];
        return column < static_cast<int>(cells.size()) ? cells[static_cast<std::size_t>(column)]
                                                       : std::string();
    }
    void SetCellText(int row, int column, const CGNString& text) override {
        auto& cells = rows.at(static_cast<std::size_t>(row));
        cells.resize(std::max(cells.size(), static_cast<std::size_t>(column) + 1));
        cells[static_cast<std::size_t>(column)] = text.str();
    }
    void InsertRow(int row, const CGNString& text) override {
        rows.insert(rows.begin() + row, {text.str()});
        Shift(row, +1);
        ++insertedRows;
    }
    void DeleteRow(int row) override {
        rows.erase(rows.begin() + row);
        selected.erase(row);
        Shift(row, -1);
    }
    void SetRowSelected(int row, bool on) override {
        on ? void(selected.insert(row)) : void(selected.erase(row));
    }
    void SetFocusedRow(int row) override { focused = row; }
    std::vector<int> GetSelectedRows() const override { return {selected.begin(), selected.end()}; }
    void EditCell(int row, int column) override { editorsStarted.emplace_back(row, column); }
    CGNString GetOriginalLabel() const override { return original; }
    void InsertColumn(int column, const CGNString& header, int width) override {
        headers.insert(headers.begin() + column, header.str());
        widths.insert(widths.begin() + column, width);
    }
    void DeleteColumn(int column) override {
        headers.erase(headers.begin() + column);
        widths.erase(widths.begin() + column);
        for (auto& cells : rows)
            if (column < static_cast<int>(cells.size())) cells.erase(cells.begin() + column);
    }
    int GetColumnWidth(int column) const override {
        return column < static_cast<int>(widths.size()) ? widths[static_cast<std::size_t>(column)]
                                                        : 0;
    }

    std::vector<std::vector<std::string>> rows;
    std::set<int> selected;
    int focused = -1;
    std::string original;
    std::vector<std::string> headers;
    std::vector<int> widths;
    std::vector<std::pair<int, int>> editorsStarted;
    int insertedRows = 0;

private:
    // Selection and focus stay with their rows, as in a list view.
    void Shift(int from, int by) {
        std::set<int> moved;
        for (int row : selected)
            moved.insert(row >= from ? row + by : row);
        selected = moved;
        if (focused >= from) focused += by;
    }
};

class FakeView : public AccountsView {
public:
    void SetUsersTitle(const CGNString& title) override { usersTitle = title.str(); }
    void SetServersTitle(const CGNString& title) override { serversTitle = title.str(); }
    bool IsAdvancedOptionsChecked() const override { return advanced; }
    void SetAdvancedOptionsChecked(bool checked) override { advanced = checked; }
    void UpdateColumnImages() override { ++imageUpdates; }
    WindowHandle GetWindowHandle() const override { return const_cast<FakeView*>(this); }

    std::string usersTitle, serversTitle;
    bool advanced = false;
    int imageUpdates = 0;
};

// Answers from a queue (OK when it is empty) and records every text it was shown.
class ScriptedPrompt : public RUserPrompt {
public:
    ~ScriptedPrompt() override { RUserPrompt::SetCurrent(m_previous); }
    int Show(WindowHandle, const char* text, const char*, unsigned style) override {
        shown.emplace_back(text);
        styles.push_back(style);
        if (answers.empty()) return kIdOk;
        const int answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::deque<int> answers;
    std::vector<std::string> shown;
    std::vector<unsigned> styles;

private:
    RUserPrompt* m_previous = RUserPrompt::SetCurrent(this);
};

class FakeOwner : public CLoginOwner {
public:
    int Login(CGNString&, CGNString&) override { return 0; }
    int GetLoggedInServerArray(CGNStringList& servers) override {
        for (const std::string& name : loggedIn)
            servers.Add(name);
        return 1;
    }
    int ShowVXPortsByDefault() override { return portsByDefault; }

    std::vector<std::string> loggedIn;
    int portsByDefault = 0;
};

// What the user is told when a change cannot be stored.
inline std::string StoreFailed(const std::string& change) {
    return "Unable to save the change to '" + change +
           "', so it has been undone.  Please make sure that the settings can be written and try "
           "again.";
}

// The dialog of current user "bob".
class Accounts {
public:
    Accounts() { std::filesystem::create_directories(home.path() / "default"); }
    ~Accounts() { RApplication::SetCurrent(m_previousApp); }

    // A folder inside the settings home, native separators.
    std::string Folder(const std::string& name) const {
        return (home.path() / name).make_preferred().string();
    }
    // `text` with the settings home and the separator after it left out.
    std::string Short(std::string text) const {
        std::replace(text.begin(), text.end(), '\\', '/');
        std::string base = home.path().string() + "/";
        std::replace(base.begin(), base.end(), '\\', '/');
        for (std::size_t at; (at = text.find(base)) != std::string::npos;)
            text.erase(at, base.size());
        return text;
    }
    // Stores a user whose folder exists.
    void AddUser(const std::string& name, const std::string& folder) {
        std::filesystem::create_directories(Folder(folder));
        CAppEnv::AddUser(name, Folder(folder));
    }
    // Opens the dialog with the default home folder "default".
    void Open() {
        CAppEnv::SetDefaultHomePath(Folder("default"));
        presenter.OnInitDialog();
    }

    // The rows of a list joined by ", ": "name=folder" (users) or "name" (servers), selected
    // rows marked "*", the add rows shown as "+" and "Default User" as "D".
    std::string UserRows() const {
        std::string text;
        for (int row = 0; row < users.GetRowCount(); ++row)
            text += std::string(row ? ", " : "") + (users.selected.count(row) ? "*" : "") +
                    (row < 2 ? std::string(row ? "D" : "+") : users.GetCellText(row, 0).str()) +
                    "=" + users.GetCellText(row, 1).str();
        return Short(text);
    }
    std::string ServerRows() const {
        std::string text;
        for (int row = 0; row < servers.GetRowCount(); ++row)
            text += std::string(row ? ", " : "") + (servers.selected.count(row) ? "*" : "") +
                    (row ? servers.GetCellText(row, 0).str() : "+");
        return text;
    }
    // The users in the store, "name=folder" joined by ", ".
    std::string StoredUsers() const {
        CGNStringList names, folders;
        CAppEnv::GetListOfUsers(names, folders);
        std::string text;
        for (int i = 0; i < names.GetCount(); ++i)
            text +=
                std::string(i ? ", " : "") + names.GetAt(i).str() + "=" + folders.GetAt(i).str();
        return Short(text);
    }
    std::string Shown() const {
        std::string text;
        for (const std::string& message : prompt.shown)
            text += (text.empty() ? "" : "|") + message;
        return text;
    }

    // An in-cell edit as the list runs it: the click selects the row, and a refused text keeps
    // the editor open (false).
    bool EditUser(int row, int column, const std::string& text) {
        users.selected = {row};
        presenter.OnItemchangedUserList();
        if (!presenter.CanEditUserItem(row, column) ||
            !presenter.IsUserEditTextValid(row, column, text))
            return false;
        users.original = users.GetCellText(row, column).str();
        users.SetCellText(row, column, text);
        presenter.OnEndLabelEditUserList(row, column);
        return true;
    }
    bool EditServer(int row, int column, const std::string& text) {
        servers.selected = {row};
        if (!presenter.CanEditServerItem(row, column) ||
            !presenter.IsServerEditTextValid(row, column, text))
            return false;
        servers.original = servers.GetCellText(row, column).str();
        servers.SetCellText(row, column, text);
        presenter.OnEndLabelEditServerList(row, column);
        return true;
    }

    TempHome home;
    RApplication app{"AccountsTest", "vxaccountstest"};
    ScriptedPrompt prompt;
    FakeOwner owner;
    FakeView view;
    FakeList users, servers;
    AccountsPresenter presenter{view, users, servers, "bob", &owner};

private:
    RApplication* m_previousApp = RApplication::SetCurrent(&app);
};

}  // namespace vx::test
