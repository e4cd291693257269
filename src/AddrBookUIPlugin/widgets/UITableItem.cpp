#include "widgets/UITableItem.h"

#include <QByteArray>
#include <QTextCodec>
#include <QVariant>

#include <cstring>

#include "logic/CaselessText.h"

namespace
{
// Asked for once: a lookup takes a lock and walks all codecs, and a sort of 50,000 rows compares nearly a million
// times.
const QTextCodec* systemCodec()
{
    static const QTextCodec* const s_pcodec = QTextCodec::codecForName("System");
    return s_pcodec;
}
} // namespace

UITableItem::UITableItem()
    : QTableWidgetItem(s_iType),
      m_bOwnValues(false),
      m_iAlignment(0),
      m_iUserData(0),
      m_ullKeyHead(0),
      m_enKeyState(KEY_UNKNOWN)
{
}

UITableItem::UITableItem(const QString& strText)
    : QTableWidgetItem(strText, s_iType),
      m_bOwnValues(false),
      m_iAlignment(0),
      m_iUserData(0),
      m_ullKeyHead(0),
      m_enKeyState(KEY_UNKNOWN)
{
}

UITableItem::UITableItem(const QString& strText, Qt::Alignment alignment, qlonglong iUserData)
    : QTableWidgetItem(s_iType),
      m_bOwnValues(true),
      m_strText(strText),
      m_iAlignment(static_cast<int>(alignment)),
      m_iUserData(iUserData),
      m_ullKeyHead(0),
      m_enKeyState(KEY_UNKNOWN)
{
}

QString UITableItem::displayText() const
{
    return m_bOwnValues ? m_strText : data(Qt::DisplayRole).toString();
}

QVariant UITableItem::data(int iRole) const
{
    if (!m_bOwnValues)
        return QTableWidgetItem::data(iRole);
    switch (iRole) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return m_strText;
    case Qt::TextAlignmentRole:
        return m_iAlignment;
    case Qt::UserRole:
        return m_iUserData;
    default:
        return QVariant();
    }
}

void UITableItem::setData(int iRole, const QVariant& value)
{
    m_enKeyState = KEY_UNKNOWN;
    if (m_bOwnValues && (iRole == Qt::DisplayRole || iRole == Qt::EditRole) && value.userType() == QMetaType::QString) {
        if (m_strText == value.toString())
            return;
        m_strText = value.toString();
        setFlags(flags()); // tells the table of a change, once
        return;
    }
    if (m_bOwnValues)
        moveToBase();
    QTableWidgetItem::setData(iRole, value);
}

void UITableItem::moveToBase()
{
    m_bOwnValues = false;
    QTableWidgetItem::setData(Qt::DisplayRole, m_strText);
    QTableWidgetItem::setData(Qt::TextAlignmentRole, m_iAlignment);
    QTableWidgetItem::setData(Qt::UserRole, m_iUserData);
    m_strText.clear();
}

// Folds each character by itself, as QString::compare does without regard to case. It takes the halves of a surrogate
// pair together, which a key of 16-bit units cannot tell: such texts have none.
bool UITableItem::makeKey() const
{
    if (m_enKeyState != KEY_UNKNOWN)
        return m_enKeyState == KEY_READY;
    m_enKeyState = KEY_NONE;
    if (systemCodec() != nullptr)
        return false;
    m_strKey = displayText();
    m_ullKeyHead = 0;
    for (int i = 0; i < m_strKey.size(); ++i) {
        const QChar ch = m_strKey.at(i);
        if (ch.isHighSurrogate() || ch.isLowSurrogate())
            return false;
        const QChar chFolded = ch.toCaseFolded();
        if (chFolded != ch)
            m_strKey[i] = chFolded;
    }
    for (int i = 0; i < 4; ++i)
        m_ullKeyHead = m_ullKeyHead << 16 | (i < m_strKey.size() ? m_strKey.at(i).unicode() : 0u);
    m_enKeyState = KEY_READY;
    return true;
}

bool UITableItem::operator<(const QTableWidgetItem& other) const
{
    if (other.type() == s_iType) {
        const UITableItem& item = static_cast<const UITableItem&>(other);
        if (makeKey() && item.makeKey()) {
            if (m_ullKeyHead != item.m_ullKeyHead)
                return m_ullKeyHead < item.m_ullKeyHead;
            const int iOrder = QString::compare(m_strKey, item.m_strKey, Qt::CaseSensitive);
            return iOrder != 0 ? iOrder < 0
                               : QString::compare(displayText(), item.displayText(), Qt::CaseSensitive) < 0;
        }
    }
    return lessThan(displayText(), other.data(Qt::DisplayRole).toString(), systemCodec());
}

bool UITableItem::Holds(const QTableWidgetItem* pitem, const CaselessText& text)
{
    if (pitem->type() == s_iType) {
        const UITableItem* pcell = static_cast<const UITableItem*>(pitem);
        if (pcell->m_bOwnValues)
            return text.IsIn(pcell->m_strText);
    }
    return text.IsIn(pitem->text());
}

void UITableItem::Announce(const QTableWidgetItem* pitem)
{
    const int LINE = 64;
    __builtin_prefetch(pitem);
    __builtin_prefetch(reinterpret_cast<const char*>(pitem) + LINE);
}

void UITableItem::AnnounceText(const QTableWidgetItem* pitem)
{
    if (pitem == nullptr || pitem->type() != s_iType)
        return;
    // The first word of a text is the address of its block, with each Qt.
    const void* pBlock = nullptr;
    std::memcpy(&pBlock, &static_cast<const UITableItem*>(pitem)->m_strText, sizeof pBlock);
    __builtin_prefetch(pBlock);
}

bool UITableItem::lessThan(const QString& strA, const QString& strB, const QTextCodec* pcodec)
{
    if (pcodec != nullptr) {
        QByteArray baA = pcodec->fromUnicode(strA.toLower());
        QByteArray baB = pcodec->fromUnicode(strB.toLower());
        if (baA == baB) {
            baA = pcodec->fromUnicode(strA);
            baB = pcodec->fromUnicode(strB);
        }
        return baA < baB;
    }
    int iOrder = QString::compare(strA, strB, Qt::CaseInsensitive);
    if (iOrder == 0)
        iOrder = QString::compare(strA, strB, Qt::CaseSensitive);
    return iOrder < 0;
}
