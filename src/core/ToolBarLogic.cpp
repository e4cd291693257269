#include "linkhand/core/ToolBarLogic.h"

#include <QFile>
#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QToolButton>

#include "Host.h"
#include "MenuFile.h"
#include "linkhand/QtCompat.h"
#include "linkhand/core/Change.h"
#include "linkhand/core/Startup.h"

namespace
{

const int s_iIconSize = 24;
const int s_iSearchWidth = 220;

QString iconFile(const QString& strPlugin, const QString& strIcon)
{
    return Host::libraryPath() + QLatin1String("/plugins/") + strPlugin + QLatin1Char('/') + strIcon;
}

// The icon as drawn, in the resolution the screen needs: Qt finds "name@2x.png" beside "name.png" by itself.
QIcon iconAsDrawn(const QString& strFile)
{
    return QPixmap(strFile).isNull() ? QIcon() : QIcon(strFile);
}

void addMirrored(QIcon& icon, const QString& strFile)
{
    const QImage image(strFile);
    if (!image.isNull())
        icon.addPixmap(QPixmap::fromImage(image.mirrored(true, false)));
}

QIcon iconMirrored(const QString& strFile)
{
    QString strTwice = strFile;
    const int iDot = strFile.lastIndexOf(QLatin1Char('.'));
    strTwice.insert(iDot < 0 ? strFile.length() : iDot, QLatin1String("@2x"));
    QIcon icon;
    addMirrored(icon, strFile);
    addMirrored(icon, strTwice);
    return icon;
}

void setIcon(const QString& strPlugin, const ToolItem& item, bool bMirrored)
{
    QToolButton* pButton = qobject_cast<QToolButton*>(item.pButton);
    if (pButton == nullptr)
        return;
    const QString strFile = iconFile(strPlugin, item.strText2);
    const QIcon icon = bMirrored ? iconMirrored(strFile) : iconAsDrawn(strFile);
    pButton->setIcon(icon);
    // Without its picture a button says what it does in words.
    pButton->setToolButtonStyle(icon.isNull() ? Qt::ToolButtonTextOnly : Qt::ToolButtonIconOnly);
}

// Text for those who cannot see the icon.
void setTexts(const QString& strPlugin, const ToolItem& item)
{
    const QString strText = Change::tr(item.strTipId, strPlugin);
    item.pButton->setText(strText);
    item.pButton->setAccessibleName(strText);
}

void setTexts(SearchLineEdit* pSearch)
{
    const QString strText = Change::tr(QLatin1String("IDS_HOST_SEARCH_HINT"), QLatin1String("linkhand"));
    pSearch->setPlaceholderText(strText);
    pSearch->setAccessibleName(strText);
    // With room for the button that clears it.
    const int iText = QtCompat::textWidth(pSearch->fontMetrics(), strText);
    pSearch->setFixedWidth(qMax(s_iSearchWidth, iText + 2 * pSearch->sizeHint().height()));
}

QToolButton* createButton(const QString& strPlugin, const ToolItem& item, QWidget* pParent)
{
    QToolButton* pButton = new QToolButton(pParent);
    pButton->setObjectName(strPlugin + QLatin1String("_ToolButton_") + QString::number(item.iId));
    pButton->setAutoRaise(true);
    pButton->setIconSize(QSize(s_iIconSize, s_iIconSize));
    pButton->setToolTip(Change::tr(item.strTipId, strPlugin));
    return pButton;
}

template <typename T>
void give(T** ppTarget, T* pObject)
{
    if (ppTarget != nullptr)
        *ppTarget = pObject;
}

} // namespace

void ToolBarLogic::GetXmlData(QString strFile, QList<ToolItem>& items, bool& bFlag, QString strPlugin)
{
    Q_UNUSED(strPlugin); // a plug-in's menu file holds its own items alone
    MenuFile file;
    file.read(strFile);
    items.clear();
    for (const MenuFile::Tool& tool : file.lstTools) {
        ToolItem item;
        item.iId = tool.iId;
        item.strTipId = tool.strTip;
        item.strText2 = tool.strIcon;
        item.bSearch = tool.bSearch;
        item.pButton = nullptr;
        items.append(item);
    }
    bFlag = file.bSubGroups;
}

bool ToolBarLogic::CreateToolBar(QString strPlugin, QWidget* pParent, QList<ToolItem>& items, QButtonGroup** ppGroup,
                                 QHBoxLayout** ppLayout, SearchLineEdit** ppSearch, QLabel** ppLabel)
{
    give<QButtonGroup>(ppGroup, nullptr);
    give<QHBoxLayout>(ppLayout, nullptr);
    give<SearchLineEdit>(ppSearch, nullptr);
    give<QLabel>(ppLabel, nullptr);
    if (pParent == nullptr || pParent->layout() != nullptr || items.isEmpty())
        return false;

    QHBoxLayout* pLayout = new QHBoxLayout(pParent);
    pLayout->setContentsMargins(4, 3, 4, 3);
    pLayout->setSpacing(2);
    QButtonGroup* pGroup = new QButtonGroup(pParent);
    pGroup->setExclusive(false);
    for (int i = 0; i < items.size(); ++i) {
        ToolItem& item = items[i];
        item.pButton = createButton(strPlugin, item, pParent);
        setTexts(strPlugin, item);
        setIcon(strPlugin, item, false);
        pGroup->addButton(item.pButton, item.iId);
        pLayout->addWidget(item.pButton);
    }

    QLabel* pLabel = new QLabel(pParent);
    pLabel->setObjectName(strPlugin + QLatin1String("_ToolLabel"));
    pLayout->addWidget(pLabel, 1);

    SearchLineEdit* pSearch = new SearchLineEdit(pParent);
    pSearch->setObjectName(strPlugin + QLatin1String("_SearchBox"));
    QtCompat::showClearButton(pSearch);
    setTexts(pSearch);
    pSearch->hide();
    pLayout->addWidget(pSearch);

    give(ppGroup, pGroup);
    give(ppLayout, pLayout);
    give(ppSearch, pSearch);
    give(ppLabel, pLabel);
    return true;
}

int ToolBarLogic::EnableDisableItem(QString strPlugin, QList<ToolItem>& items, int iId, bool bEnable)
{
    Q_UNUSED(strPlugin);
    for (int i = 0; i < items.size(); ++i) {
        QAbstractButton* pButton = items.at(i).pButton;
        if (items.at(i).iId == iId && pButton != nullptr) {
            pButton->setEnabled(bEnable);
            return 1;
        }
    }
    return 0;
}

void ToolBarLogic::ShowHideSearchBox(QWidget* pBar, QHBoxLayout* pLayout, SearchLineEdit* pSearch, bool bShow)
{
    if (pSearch == nullptr)
        return;
    pSearch->setVisible(bShow);
    // Laid out before the next event, so that the box takes its place without a flicker.
    if (pBar != nullptr && pLayout != nullptr)
        pLayout->activate();
    if (bShow) {
        pSearch->setFocus(Qt::OtherFocusReason);
        pSearch->selectAll();
    }
}

void ToolBarLogic::ChangeToolBarIconDirection(QString strPlugin, QList<ToolItem>& items, bool bRightToLeft,
                                              QLabel** ppLabel)
{
    for (int i = 0; i < items.size(); ++i) {
        if (items.at(i).pButton == nullptr)
            continue;
        setTexts(strPlugin, items.at(i));
        setIcon(strPlugin, items.at(i), bRightToLeft);
    }
    // The direction changes with the language, and nobody else tells the search box of it.
    QLabel* pLabel = ppLabel != nullptr ? *ppLabel : nullptr;
    QWidget* pBar = pLabel != nullptr ? pLabel->parentWidget() : nullptr;
    if (SearchLineEdit* pSearch = pBar != nullptr ? pBar->findChild<SearchLineEdit*>() : nullptr)
        setTexts(pSearch);
}

void ToolBarLogic::DestroyToolButtonGroup(QList<ToolItem>& items, QButtonGroup** ppGroup)
{
    for (int i = 0; i < items.size(); ++i) {
        delete items[i].pButton;
        items[i].pButton = nullptr;
    }
    if (ppGroup == nullptr)
        return;
    delete *ppGroup;
    *ppGroup = nullptr;
}

QString ToolBarLogic::GetObjectName(QString strPlugin)
{
    return strPlugin + QLatin1String("_ToolBar");
}

bool ToolBarLogic::getPlugin(QString strId)
{
    IPluginContainer* pContainer = Startup::GetPluginContainer();
    return pContainer != nullptr && pContainer->GetPlugin(strId, 0) != nullptr;
}
