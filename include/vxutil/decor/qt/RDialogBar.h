// A one-line title bar over a pane: a text on a background colour, in a text colour and font
// that the user changes from the bar's right-click menu ("Font...", "Background..."). The look
// is one for all bars, kept in the client tool's profile (section "DialogBar"), and every open
// bar follows a change at once.
#pragma once

#include <QColor>
#include <QFont>
#include <QFrame>
#include <optional>

#include "vxutil/decor/DialogBarLayout.h"
#include "vxutil/decor/DialogBarLook.h"
#include "vxutil/widgets_export.h"

class QLabel;

namespace vx {

// How the user picks a font or a colour; tests install one that answers without a dialog.
class VXUTIL_WIDGETS_API DialogBarChooser {
public:
    virtual ~DialogBarChooser();
    virtual std::optional<QFont> ChooseFont(QWidget* parent, const QFont& current) = 0;
    virtual std::optional<QColor> ChooseColor(QWidget* parent, const QColor& current) = 0;

    // The chooser the bars use (null: Qt's font and colour dialogs); returns the previous one.
    static DialogBarChooser* SetCurrent(DialogBarChooser* chooser);
    static DialogBarChooser& Current();
};

}  // namespace vx

class VXUTIL_WIDGETS_API RDialogBar : public QFrame {
    Q_OBJECT
public:
    // The bar's control ids: the text control keeps its dialog id in its object name.
    static constexpr int kTextControlId = 3405;

    explicit RDialogBar(QWidget* parent = nullptr);

    // Places the bar in `parent` under `barId` (its object name "dialogBar_<id>"); the template
    // id names the layout the bar was drawn from and is kept for the caller. 1 on success.
    virtual int CreateBar(QWidget* parent, unsigned templateId, unsigned barId);
    virtual void SetDisplayText(const char* text);
    // The text of string `stringId` of the library's string table.
    virtual void SetDisplayText(int stringId);
    QString GetDisplayText() const;

    // Take over `source`'s colour or font (null: the stored one). `redraw` repaints this bar,
    // `store` writes the value to the profile, `broadcast` makes every open bar take it over.
    virtual void SetDisplayTextColor(RDialogBar* source, int redraw, int store, int broadcast);
    virtual void SetDisplayBkColor(RDialogBar* source, int redraw, int store, int broadcast);
    virtual void SetDisplayFont(RDialogBar* source, int redraw, int store, int broadcast);

    QColor TextColor() const { return m_text; }
    QColor BackgroundColor() const { return m_background; }
    const vx::LogFont& TextLogFont() const { return m_font; }

    // The commands of the right-click menu: the user's choice, applied, stored and broadcast.
    void OnFontChange();
    void OnBkgndColorChange();

protected:
    void EnableDefaultMenu(int enable) { m_bDefaultMenu = enable != 0; }
    void SetDefaultText(int stringId) { SetDisplayText(stringId); }

    virtual void SetBarTextColor(const QColor& color);
    virtual void SetBarBkgnd(const QColor& color);
    virtual void SetBarFont(const vx::LogFont& font);
    // The stored look; colours not stored yet are taken from the palette and written back.
    virtual QColor GetBkgndColor() const;
    virtual QColor GetTextColor() const;
    virtual vx::LogFont GetTextFont() const;
    virtual bool SaveRegistryBkgndColor(const QColor& color);
    virtual bool SaveRegistryTextColor(const QColor& color);
    virtual bool SaveRegistryTextFont(const vx::LogFont& font);

    void resizeEvent(QResizeEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    // After a look was taken over: repaints this bar, and has every open bar take the stored
    // look again.
    void Publish(int redraw, int broadcast);
    // Every bar takes the stored look again after one of them changed it.
    void ReloadLook();

    QLabel* m_pLabel;
    QColor m_background;
    QColor m_text;
    vx::LogFont m_font;
    bool m_bDefaultMenu = true;
};
