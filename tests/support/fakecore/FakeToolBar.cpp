#include <QButtonGroup>
#include <QDomDocument>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include "fakecore/FakeCoreState.h"

using fakecore::state;

SearchLineEdit::SearchLineEdit(QWidget* pParent) : QLineEdit(pParent) {}

void SearchLineEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_N && event->modifiers() == Qt::ControlModifier)
        emit controlN();
    else
        QLineEdit::keyPressEvent(event);
}

void ToolBarLogic::GetXmlData(QString strFile, QList<ToolItem>& items, bool& bFlag, QString)
{
    state().log << "GetXmlData";
    items.clear();
    bFlag = false;
    if (state().toolItemsFixed) {
        items = state().toolItems;
        bFlag = state().subgroups;
        return;
    }
    QByteArray text;
    QDomDocument document;
    if (!fakecore::readMenuFile(strFile, text) || !document.setContent(text))
        return;
    const QDomElement bar = document.documentElement().firstChildElement("toolbar");
    bFlag = bar.attribute("subgroups") == "true";
    QDomElement element = bar.firstChildElement("toolitem");
    for (; !element.isNull(); element = element.nextSiblingElement("toolitem")) {
        ToolItem item;
        item.iId = element.attribute("id").toInt();
        item.strTipId = element.attribute("tip");
        item.strText2 = element.attribute("icon");
        item.bSearch = element.attribute("search") == "true";
        item.pButton = nullptr;
        items << item;
    }
}

bool ToolBarLogic::CreateToolBar(QString strPlugin, QWidget* pParent, QList<ToolItem>& items, QButtonGroup** ppGroup,
                                 QHBoxLayout** ppLayout, SearchLineEdit** ppSearch, QLabel** ppLabel)
{
    state().log << "CreateToolBar";
    *ppGroup = nullptr;
    *ppLayout = nullptr;
    *ppSearch = nullptr;
    *ppLabel = nullptr;
    if (pParent == nullptr || items.isEmpty() || !state().createToolBarResult)
        return false;
    *ppGroup = new QButtonGroup(pParent);
    *ppLayout = new QHBoxLayout(pParent);
    for (ToolItem& item : items) {
        QToolButton* const button = new QToolButton(pParent);
        button->setToolTip(Change::tr(item.strTipId, strPlugin));
        (*ppGroup)->addButton(button, item.iId);
        (*ppLayout)->addWidget(button);
        item.pButton = button;
    }
    *ppSearch = new SearchLineEdit(pParent);
    (*ppSearch)->hide();
    (*ppLayout)->addWidget(*ppSearch);
    *ppLabel = new QLabel(pParent);
    (*ppLayout)->addWidget(*ppLabel, 1);
    return true;
}

int ToolBarLogic::EnableDisableItem(QString, QList<ToolItem>& items, int iId, bool bEnable)
{
    state().log << QString("EnableDisableItem(%1, %2)").arg(iId).arg(bEnable ? "true" : "false");
    for (ToolItem& item : items) {
        if (item.iId == iId && item.pButton != nullptr) {
            item.pButton->setEnabled(bEnable);
            return 1;
        }
    }
    return 0;
}

void ToolBarLogic::ShowHideSearchBox(QWidget*, QHBoxLayout*, SearchLineEdit* pSearch, bool bShow)
{
    state().log << QString("ShowHideSearchBox(%1)").arg(bShow ? "true" : "false");
    if (pSearch == nullptr)
        return;
    pSearch->setVisible(bShow);
    if (bShow)
        pSearch->setFocus();
}

void ToolBarLogic::ChangeToolBarIconDirection(QString, QList<ToolItem>&, bool bRightToLeft, QLabel**)
{
    state().log << QString("ChangeToolBarIconDirection(%1)").arg(bRightToLeft ? "true" : "false");
}

void ToolBarLogic::DestroyToolButtonGroup(QList<ToolItem>& items, QButtonGroup** ppGroup)
{
    state().log << "DestroyToolButtonGroup";
    for (ToolItem& item : items) {
        delete item.pButton;
        item.pButton = nullptr;
    }
    if (ppGroup != nullptr) {
        delete *ppGroup;
        *ppGroup = nullptr;
    }
}

QString ToolBarLogic::GetObjectName(QString strPlugin)
{
    return strPlugin + "_ToolBar";
}
