#include "window/StyleSheet.h"

#include <QApplication>
#include <QColor>
#include <QFontInfo>

#include <cmath>

namespace
{

QColor mix(const QColor& one, const QColor& other, qreal fOther)
{
    return QColor::fromRgbF(one.redF() + (other.redF() - one.redF()) * fOther,
                            one.greenF() + (other.greenF() - one.greenF()) * fOther,
                            one.blueF() + (other.blueF() - one.blueF()) * fOther);
}

// Relative luminance and contrast as WCAG 2.1 defines them.
qreal luminance(const QColor& color)
{
    const auto linear = [](qreal fPart) {
        return fPart <= 0.03928 ? fPart / 12.92 : std::pow((fPart + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

qreal contrast(const QColor& one, const QColor& other)
{
    const qreal fOne = luminance(one) + 0.05;
    const qreal fOther = luminance(other) + 0.05;
    return fOne > fOther ? fOne / fOther : fOther / fOne;
}

const qreal LEAST_CONTRAST = 4.5; // WCAG 2.1, level AA

// One scale of letters, from the desktop's own size: small, text, title, large.
const qreal SMALL = 0.92;
const qreal TITLE = 1.25;
const qreal LARGE = 1.6;

const char* const BARS =
    "#linkhand_NavBar, #linkhand_DevicePanel, #linkhand_StatusArea { background: %bar%; border: none; }"
    "#linkhand_StatusArea { border-top: 1px solid %line%; }"
    "#linkhand_StatusArea QLabel { color: %quiet%; font-size: %small%px; }"
    "#linkhand_StatusArea QToolButton { border: 1px solid transparent; border-radius: 3px; padding: 1px 4px;"
    " color: %quiet%; font-size: %small%px; }"
    "#linkhand_StatusArea QToolButton:hover { color: %text%; }"
    "#linkhand_StatusArea QToolButton:focus { border-color: %accent%; color: %text%; }";

const char* const LETTERS =
    "#linkhand_DevicePanel_title, #linkhand_Messages_title, #linkhand_Calls_title, #linkhand_Care_title, "
    "#linkhand_Preferences_title, #linkhand_About_name"
    " { font-size: %title%px;"
    " font-weight: bold; }"
    "#linkhand_DevicePanel_hint, #linkhand_Messages_hint, #linkhand_Calls_hint, #linkhand_Care_bin_hint, "
    "#linkhand_Care_backups_hint, #linkhand_Care_duplicates_hint, #linkhand_Care_check_hint, "
    "#linkhand_Care_details_hint, #linkhand_Care_import_hint, #linkhand_Care_sync_hint, "
    "#linkhand_Preferences_hint"
    " { color: %quiet%; }"
    "#linkhand_Page_failure { color: %quiet%; font-size: %title%px; }"
    "#VoiceCallPlugin_labelNumber, #VideoCallPlugin_labelNumber { font-size: %large%px; }"
    "#VoiceCallPlugin_labelState, #VideoCallPlugin_labelState, #SMSUIPlugin_labelLength, #MMSUIPlugin_labelLength"
    " { color: %quiet%; }"
    "#VoiceCallPlugin_callBox, #VideoCallPlugin_callBox { border: 1px solid %line%; }";

// Lists draw no focus of their own on a row, so that their border tells where the keys go. The number picker's tree
// gets its name after it was polished, which is too late for a rule by name.
const char* const LISTS =
    "#AddrBookUIPlugin_TreeWidget, #AddrBookUIPlugin_ContactTable, #AddrBookUIPlugin_labelPreview,"
    " ExtendDialog QTreeView, #linkhand_Messages_list, #linkhand_Messages_preview,"
    " #linkhand_Problems_list, #linkhand_Help_keys, #VoiceCallPlugin_treeCalls, #ChoosePhoneNumber_TableWidget, "
    "CareTable, "
    "#linkhand_Care_check_found"
    " { border: 1px solid %line%; }"
    "#AddrBookUIPlugin_TreeWidget:focus, #AddrBookUIPlugin_ContactTable:focus, #AddrBookUIPlugin_labelPreview:focus,"
    " ExtendDialog QTreeView:focus, #linkhand_Messages_list:focus,"
    " #linkhand_Messages_preview:focus, #linkhand_Problems_list:focus, #linkhand_Help_keys:focus, "
    "#VoiceCallPlugin_treeCalls:focus,"
    " #ChoosePhoneNumber_TableWidget:focus, CareTable:focus, #linkhand_Care_check_found:focus { border: 1px solid "
    "%accent%; }"
    // From right to left Qt places the parts of a splitter one pixel too far to the right, and cuts that border off.
    "#AddrBookUIPlugin_TreeWidget, #linkhand_Care_details_contacts { margin: 0 1px; }"
    // A style's own empty box can be as dark as its ground.
    "ExtendDialog QTreeView::indicator:unchecked { border: 1px solid %edge%; background: %base%; }"
    "QTableView { gridline-color: %line%; }"
    "QSplitter::handle { background: transparent; }"
    "QHeaderView { background: %bar%; }"
    "QHeaderView::section { background: %bar%; color: %text%; border: none; border-bottom: 1px solid %line%;"
    " border-%end%: 1px solid %line%; padding: 3px 6px; }"
    // The last column of a list ends at the list's own border.
    "QTreeView QHeaderView::section:last { border-%end%: none; }"
    // Qt's columns are no wider than their titles.
    "QFileDialog QHeaderView::section { padding: 3px 2px; }";

QString pixels(const QFont& font, qreal fFactor)
{
    return QString::number(qRound(QFontInfo(font).pixelSize() * fFactor));
}

} // namespace

QString StyleSheet::Build(const QPalette& palette, const QFont& font)
{
    const QColor& window = palette.color(QPalette::Window);
    const QColor& text = palette.color(QPalette::WindowText);
    QString strRules = QLatin1String(BARS) + QLatin1String(LETTERS) + QLatin1String(LISTS);
    strRules.replace(QLatin1String("%bar%"), mix(window, text, 0.04).name());
    strRules.replace(QLatin1String("%line%"), mix(window, text, 0.18).name());
    strRules.replace(QLatin1String("%edge%"), mix(window, text, 0.5).name());
    strRules.replace(QLatin1String("%base%"), palette.color(QPalette::Base).name());
    strRules.replace(QLatin1String("%quiet%"), mix(text, window, 0.3).name());
    strRules.replace(QLatin1String("%text%"), text.name());
    strRules.replace(QLatin1String("%accent%"), palette.color(QPalette::Highlight).name());
    strRules.replace(QLatin1String("%end%"), QLatin1String(QApplication::isRightToLeft() ? "left" : "right"));
    strRules.replace(QLatin1String("%small%"), pixels(font, SMALL));
    strRules.replace(QLatin1String("%title%"), pixels(font, TITLE));
    strRules.replace(QLatin1String("%large%"), pixels(font, LARGE));
    return strRules;
}

QPalette StyleSheet::WithLegibleLinks(QPalette palette)
{
    const QColor base = palette.color(QPalette::Base);
    for (const QPalette::ColorRole enRole : {QPalette::Link, QPalette::LinkVisited}) {
        if (contrast(palette.color(enRole), base) < LEAST_CONTRAST) {
            const bool bDark = luminance(base) < 0.2;
            palette.setColor(enRole, bDark ? QColor(0x7a, 0xb8, 0xf5) : QColor(0x05, 0x50, 0xae));
        }
    }
    return palette;
}

QPalette StyleSheet::WithPlainDisabledTexts(QPalette palette)
{
    palette.setColor(QPalette::Disabled, QPalette::Light, palette.color(QPalette::Disabled, QPalette::Base));
    return palette;
}
