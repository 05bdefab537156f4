#include "listctrl/qt/EditLogicAdapter.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <algorithm>
#include <iterator>
#include <utility>

#include "vxutil/runtime/qt/QtText.h"

namespace vx {
namespace {

struct KeyMapping {
    int qtKey;
    unsigned virtualKey;
};

// Keys whose Qt code differs from their virtual-key code. Letters and main-row digits share
// their codes with the virtual keys.
constexpr KeyMapping kKeys[] = {
    {Qt::Key_Backspace, 0x08},  {Qt::Key_Tab, 0x09},         {Qt::Key_Backtab, 0x09},
    {Qt::Key_Return, 0x0D},     {Qt::Key_Enter, 0x0D},       {Qt::Key_Shift, 0x10},
    {Qt::Key_Control, 0x11},    {Qt::Key_Alt, 0x12},         {Qt::Key_Escape, 0x1B},
    {Qt::Key_Space, 0x20},      {Qt::Key_PageUp, 0x21},      {Qt::Key_PageDown, 0x22},
    {Qt::Key_End, 0x23},        {Qt::Key_Home, 0x24},        {Qt::Key_Left, 0x25},
    {Qt::Key_Up, 0x26},         {Qt::Key_Right, 0x27},       {Qt::Key_Down, 0x28},
    {Qt::Key_Insert, 0x2D},     {Qt::Key_Delete, 0x2E},      {Qt::Key_Semicolon, 0xBA},
    {Qt::Key_Colon, 0xBA},      {Qt::Key_Equal, 0xBB},       {Qt::Key_Plus, 0xBB},
    {Qt::Key_Comma, 0xBC},      {Qt::Key_Less, 0xBC},        {Qt::Key_Minus, 0xBD},
    {Qt::Key_Underscore, 0xBD}, {Qt::Key_Period, 0xBE},      {Qt::Key_Greater, 0xBE},
    {Qt::Key_Slash, 0xBF},      {Qt::Key_Question, 0xBF},    {Qt::Key_QuoteLeft, 0xC0},
    {Qt::Key_AsciiTilde, 0xC0}, {Qt::Key_BracketLeft, 0xDB}, {Qt::Key_BraceLeft, 0xDB},
    {Qt::Key_Backslash, 0xDC},  {Qt::Key_Bar, 0xDC},         {Qt::Key_BracketRight, 0xDD},
    {Qt::Key_BraceRight, 0xDD}, {Qt::Key_Apostrophe, 0xDE},  {Qt::Key_QuoteDbl, 0xDE},
};

// The keypad's own keys.
constexpr KeyMapping kKeypadKeys[] = {
    {Qt::Key_Asterisk, 0x6A}, {Qt::Key_Plus, 0x6B},  {Qt::Key_Minus, 0x6D},
    {Qt::Key_Period, 0x6E},   {Qt::Key_Comma, 0x6E}, {Qt::Key_Slash, 0x6F},
};

constexpr unsigned kVkNumpad0 = 0x60;

unsigned Lookup(const KeyMapping* first, const KeyMapping* last, int key) {
    const KeyMapping* found =
        std::find_if(first, last, [key](const KeyMapping& m) { return m.qtKey == key; });
    return found != last ? found->virtualKey : 0;
}

unsigned VirtualKeyOf(int key, bool keypad) {
    if (keypad) {
        if (key >= Qt::Key_0 && key <= Qt::Key_9) return kVkNumpad0 + (key - Qt::Key_0);
        if (unsigned vk = Lookup(std::begin(kKeypadKeys), std::end(kKeypadKeys), key)) return vk;
    }
    if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9))
        return static_cast<unsigned>(key);
    return Lookup(std::begin(kKeys), std::end(kKeys), key);
}

int CharacterOf(const QKeyEvent& event) {
    const int key = event.key();
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Escape:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
        case Qt::Key_Delete:  // X11 may still carry 0x7F as its text
            return -1;
        case Qt::Key_Backspace:
            return 0x08;
        default:
            break;
    }
    const Qt::KeyboardModifiers modifiers = event.modifiers();
    if (modifiers.testFlag(Qt::ControlModifier) && !modifiers.testFlag(Qt::AltModifier))
        return key >= Qt::Key_A && key <= Qt::Key_Z ? key - Qt::Key_A + 1 : -1;
    const QString text = event.text();
    if (text.isEmpty()) return -1;
    // Characters beyond Latin-1 keep their code, which no class of the allow mask names.
    const int ch = text.at(0).unicode();
    return ch < 0x20 || ch == 0x7F ? -1 : ch;
}

EditLogicAdapter::Beeper& CurrentBeeper() {
    static EditLogicAdapter::Beeper beeper;
    return beeper;
}

}  // namespace

EditLogicAdapter::Keystroke EditLogicAdapter::Translate(const QKeyEvent& event) {
    const bool keypad = event.modifiers().testFlag(Qt::KeypadModifier);
    return {VirtualKeyOf(event.key(), keypad), CharacterOf(event)};
}

EditLogicAdapter::Beeper EditLogicAdapter::SetBeeper(Beeper beeper) {
    return std::exchange(CurrentBeeper(), std::move(beeper));
}

EditLogicAdapter::EditLogicAdapter(QLineEdit* edit, std::unique_ptr<RBaseEditLogic> logic,
                                   ModalGuard& guard)
    : QObject(edit), m_edit(edit), m_logic(std::move(logic)), m_guard(guard) {
    m_logic->SetEditWindow(this);
}

EditLogicAdapter::~EditLogicAdapter() = default;

EditLogicAdapter* EditLogicAdapter::Of(const QObject* edit) {
    return edit != nullptr
               ? edit->findChild<EditLogicAdapter*>(QString(), Qt::FindDirectChildrenOnly)
               : nullptr;
}

bool EditLogicAdapter::Filter(QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress: {
            const Keystroke keystroke = Translate(*static_cast<QKeyEvent*>(event));
            if (keystroke.virtualKey != 0 &&
                Run(EditMessage::KeyDown(keystroke.virtualKey)).swallowed)
                return true;
            if (keystroke.character < 0) return false;
            const EditFilterResult result =
                Run(EditMessage::Char(static_cast<unsigned>(keystroke.character)));
            if (result.swallowed) return true;
            if (result.replacementChar < 0 || !m_edit) return false;
            m_edit->insert(QString(QChar(result.replacementChar)));
            return true;
        }
        case QEvent::MouseButtonPress: {
            const auto* mouse = static_cast<QMouseEvent*>(event);
            if (mouse->button() != Qt::LeftButton) return false;
            const QPoint at = mouse->position().toPoint();
            Run(EditMessage::LButtonDown({at.x(), at.y()}));
            return false;
        }
        default:
            return false;
    }
}

EditFilterResult EditLogicAdapter::Run(const EditMessage& message) {
    ModalGuard::Scope modal(m_guard);
    return m_logic->PreTranslateMessage(message);
}

bool EditLogicAdapter::Exists() const {
    return !m_edit.isNull();
}

CGNString EditLogicAdapter::GetText() const {
    return m_edit ? FromQString(m_edit->text()) : CGNString();
}

void EditLogicAdapter::GetSel(int& start, int& end) const {
    start = end = 0;
    if (!m_edit) return;
    int from = m_edit->cursorPosition();
    int to = from;
    if (m_edit->hasSelectedText()) {
        from = m_edit->selectionStart();
        to = m_edit->selectionEnd();
    }
    // The logic counts in the bytes of the core's text, Qt in UTF-16 code units.
    const QString text = m_edit->text();
    start = static_cast<int>(FromQString(text.left(from)).GetLength());
    end = static_cast<int>(FromQString(text.left(to)).GetLength());
}

bool EditLogicAdapter::ClientContains(ClientPoint point) const {
    return m_edit && m_edit->rect().contains(point.x, point.y);
}

void EditLogicAdapter::PostKeyDown(unsigned virtualKey) {
    QMetaObject::invokeMethod(
        this, [this, virtualKey] { Run(EditMessage::KeyDown(virtualKey)); }, Qt::QueuedConnection);
}

void EditLogicAdapter::Beep() {
    if (const Beeper& beeper = CurrentBeeper())
        beeper();
    else
        QApplication::beep();
}

WindowHandle EditLogicAdapter::PromptParent() const {
    return m_edit ? m_edit->window() : nullptr;
}

}  // namespace vx
