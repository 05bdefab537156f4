#include "vxutil/login/qt/CAboutDlg.h"

#include <QApplication>
#include <algorithm>

#include "gnrt/StringTable.h"
#include "ui_about.h"
#include "vxutil/login/SystemInfo.h"
#include "vxutil/runtime/qt/QtText.h"

namespace {

constexpr int kIconSize = 32;

// One tab stop just right of the widest label, so that every value starts in one column.
qreal TabStopFor(const QString& text, const QFontMetricsF& metrics) {
    qreal widest = 0;
    for (const QStringView line : QStringView(text).split(u'\n')) {
        const qsizetype tab = line.indexOf(u'\t');
        if (tab >= 0)
            widest = std::max(widest, metrics.horizontalAdvance(line.left(tab).toString()));
    }
    return widest + 2 * metrics.horizontalAdvance(u' ');
}

// Wide enough to show every line without scrolling (tabs at `tabStop`), up to a sane limit.
int WidthFor(const QString& text, const QFontMetricsF& metrics, qreal tabStop) {
    constexpr qreal kMostWidth = 720;
    qreal widest = 0;
    for (const QStringView line : QStringView(text).split(u'\n')) {
        const qsizetype tab = line.indexOf(u'\t');
        const qreal width = tab < 0
                                ? metrics.horizontalAdvance(line.toString())
                                : tabStop + metrics.horizontalAdvance(line.mid(tab + 1).toString());
        widest = std::max(widest, width);
    }
    // Room for the frame, the document margins and a vertical scroll bar.
    return qRound(std::min(widest, kMostWidth)) + 40;
}

void ShowPixmap(QLabel& label, const QPixmap& pixmap) {
    label.setPixmap(pixmap);
    label.setVisible(!pixmap.isNull());
}

}  // namespace

struct CAboutDlg::Parts {
    Ui::CAboutDlg ui;
};

CAboutDlg::CAboutDlg(const QString& productName, quint16 majorVersion, quint16 minorVersion,
                     quint32 build, const QPixmap& bitmap, const QIcon& icon, const QString& legal,
                     QWidget* parent)
    : CWDialog(parent), m_pParts(std::make_unique<Parts>()) {
    Ui::CAboutDlg& ui = m_pParts->ui;
    ui.setupUi(this);
    setWindowTitle(vx::Tr(vx::kStrAboutCaption) + productName);
    ui.productLabel->setText(productName);
    ui.versionLabel->setText(
        vx::Tr(vx::kStrAboutVersion).arg(majorVersion).arg(minorVersion).arg(build));
    ui.legalLabel->setText(legal);
    ui.legalLabel->setVisible(!legal.isEmpty());
    const QIcon shown = icon.isNull() ? QApplication::windowIcon() : icon;
    ShowPixmap(*ui.iconLabel, shown.pixmap(kIconSize));
    ShowPixmap(*ui.bitmapLabel, bitmap);

    const QString info = vx::ToQString(ClientGetSystemInfo());
    const QFontMetricsF metrics(ui.systemInfo->font());
    ui.systemInfo->setTabStopDistance(TabStopFor(info, metrics));
    ui.systemInfo->setPlainText(info);
    ui.systemInfo->setMinimumWidth(WidthFor(info, metrics, ui.systemInfo->tabStopDistance()));
}

CAboutDlg::~CAboutDlg() = default;
