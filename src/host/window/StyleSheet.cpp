#include "window/StyleSheet.h"

#include <QColor>

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

const char* const RULES =
    "#linkhand_NavBar { background: %bar%; border: none; }"
    "#linkhand_DevicePanel { background: %bar%; border: none; }"
    "#linkhand_StatusArea { background: %bar%; border: none; border-top: 1px solid %line%; }"
    "#linkhand_StatusArea QLabel { color: %quiet%; }"
    "#linkhand_StatusArea QToolButton { border: none; padding: 2px 4px; color: %quiet%; }"
    "#linkhand_StatusArea QToolButton:hover { color: %text%; }"
    "#linkhand_DevicePanel_title, #linkhand_Messages_title, #linkhand_Calls_title { font-size: 15px; font-weight: "
    "bold; }"
    "#linkhand_DevicePanel_hint, #linkhand_Messages_hint, #linkhand_Calls_hint { color: %quiet%; }"
    "#linkhand_Page_failure { color: %quiet%; font-size: 14px; }"
    // The contact table's rows are 16 pixels high, whatever the user's letters are.
    "#AddrBookUIPlugin_ContactTable { font-size: 12px; }"
    "QSplitter::handle { background: transparent; }"
    "QHeaderView::section { background: %bar%; color: %text%; border: none; border-bottom: 1px solid %line%;"
    " border-right: 1px solid %line%; padding: 3px 6px; }";

} // namespace

QString StyleSheet::Build(const QPalette& palette)
{
    const QColor window = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);
    QString strRules = QLatin1String(RULES);
    strRules.replace(QLatin1String("%bar%"), mix(window, text, 0.04).name());
    strRules.replace(QLatin1String("%line%"), mix(window, text, 0.18).name());
    strRules.replace(QLatin1String("%quiet%"), mix(text, window, 0.35).name());
    strRules.replace(QLatin1String("%text%"), text.name());
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
