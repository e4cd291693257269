#include "window/PhonebookLayout.h"

#include <QMetaObject>
#include <QSplitter>
#include <QTableWidget>

#include "linkhand/core/CommonUtils.h"
#include "settings/HostSettings.h"
#include "window/PhonebookParts.h"

namespace
{

const int LOOK_MS = 10;
const int NARROWEST = 16; // a column that nobody finds again is none
const int WIDEST = 4000;

bool keepsColumns()
{
    return !CommonUtils::GetSettings(QLatin1String("addrbook"), QLatin1String("sortpreserve"))
                .startsWith(QLatin1Char('0'));
}

// By its name in the window.
QString keyOf(const QObject& part)
{
    return part.objectName().section(QLatin1Char('_'), 1);
}

bool isUsable(const QList<int>& listSizes, int iCount)
{
    int iSum = 0;
    foreach (int iSize, listSizes) {
        if (iSize < 0) {
            return false;
        }
        iSum += iSize;
    }
    return listSizes.size() == iCount && iSum > 0;
}

} // namespace

PhonebookLayout::PhonebookLayout(QWidget& page, HostSettings& settings)
    : m_page(page), m_settings(settings), m_bRestored(false)
{
    connect(&m_look, SIGNAL(timeout()), this, SLOT(OnLook()));
    if (PhonebookParts::Window(m_page) != nullptr) {
        m_look.start(LOOK_MS);
    }
}

void PhonebookLayout::OnLook()
{
    if (!PhonebookParts::IsRead(m_page)) {
        return;
    }
    m_look.stop();
    m_bRestored = true;
    restoreColumns();
    restoreSplitters();
    emit restored();
}

void PhonebookLayout::restoreColumns()
{
    QTableWidget* const pTable = PhonebookParts::Table(m_page);
    const QList<int> listWidths = m_settings.Sizes(keyOf(*pTable));
    for (int i = 0; keepsColumns() && i < qMin(listWidths.size(), pTable->columnCount()); ++i) {
        if (listWidths.at(i) >= NARROWEST && listWidths.at(i) <= WIDEST) {
            pTable->setColumnWidth(i, listWidths.at(i));
        }
    }
}

void PhonebookLayout::restoreSplitters()
{
    QSplitter* const apSplitters[] = {PhonebookParts::MainSplitter(m_page), PhonebookParts::PreviewSplitter(m_page)};
    for (QSplitter* pSplitter : apSplitters) {
        const QList<int> listSizes = pSplitter != nullptr ? m_settings.Sizes(keyOf(*pSplitter)) : QList<int>();
        if (pSplitter == nullptr || !isUsable(listSizes, pSplitter->count())) {
            continue;
        }
        pSplitter->setSizes(listSizes);
        // What a person moves is told of, and the window fits its tree to it.
        QMetaObject::invokeMethod(pSplitter, "splitterMoved", Q_ARG(int, pSplitter->sizes().first()), Q_ARG(int, 1));
    }
}

void PhonebookLayout::Keep()
{
    if (!m_bRestored) {
        return;
    }
    const QTableWidget* const pTable = PhonebookParts::Table(m_page);
    if (keepsColumns() && PhonebookParts::IsRead(m_page)) {
        // Those of a memory with more fields stay behind those that are shown.
        QList<int> listWidths = m_settings.Sizes(keyOf(*pTable));
        for (int i = 0; i < pTable->columnCount(); ++i) {
            if (i < listWidths.size()) {
                listWidths.replace(i, pTable->columnWidth(i));
            } else {
                listWidths.append(pTable->columnWidth(i));
            }
        }
        m_settings.SetSizes(keyOf(*pTable), listWidths);
    }
    const QSplitter* const apSplitters[] = {PhonebookParts::MainSplitter(m_page),
                                            PhonebookParts::PreviewSplitter(m_page)};
    for (const QSplitter* pSplitter : apSplitters) {
        if (pSplitter != nullptr) {
            m_settings.SetSizes(keyOf(*pSplitter), pSplitter->sizes());
        }
    }
}
