#include "Catalogue.h"

#include <cstring>

#include <QBitArray>
#include <QFile>
#include <QtEndian>

namespace
{

const int s_iMaxFileSize = 8 * 1024 * 1024;
const char s_szShortcut[] = "shortcut";

// Tests a compiled language file from end to end. QTranslator follows the offsets and lengths that the file gives
// without looking where they lead, so that only a file that passed may reach it.
class QmCheck
{
public:
    explicit QmCheck(const QByteArray& content)
        : m_pData(reinterpret_cast<const uchar*>(content.constData())), m_iSize(quint32(content.size()))
    {
    }

    bool isSound()
    {
        static const uchar magic[] = {0x3c, 0xb8, 0x64, 0x18, 0xca, 0xef, 0x9c, 0x95,
                                      0xcd, 0x21, 0x1c, 0xbf, 0x60, 0xa1, 0xbd, 0xdd};
        if (m_iSize < sizeof(magic) || memcmp(m_pData, magic, sizeof(magic)) != 0)
            return false;
        return readSections(sizeof(magic)) && checkHashes();
    }

private:
    enum Section : uchar { Contexts = 0x2f, Hashes = 0x42, Messages = 0x69, Dependencies = 0x96 };
    enum Tag : uchar { End = 1, Translation = 3, Obsolete = 5, SourceText = 6, Context = 7, Comment = 8 };

    struct Block {
        quint32 iStart = 0;
        quint32 iLength = 0;
    };

    quint32 read32(quint32 iAt) const { return qFromBigEndian<quint32>(m_pData + iAt); }

    bool readSections(quint32 iAt)
    {
        while (m_iSize - iAt > 4) {
            const uchar tag = m_pData[iAt];
            const quint32 iLength = read32(iAt + 1);
            iAt += 5;
            if (tag == 0 || iLength == 0)
                break;
            if (iLength > m_iSize - iAt)
                return false;
            if (tag == Contexts || tag == Dependencies) // of old or linked files; ours have neither
                return false;
            if (Block* pBlock = tag == Hashes ? &m_hashes : tag == Messages ? &m_messages : nullptr) {
                if (pBlock->iLength != 0)
                    return false;
                pBlock->iStart = iAt;
                pBlock->iLength = iLength;
            }
            iAt += iLength;
        }
        return true;
    }

    bool checkHashes()
    {
        if (m_hashes.iLength % 8 != 0)
            return false;
        m_checked.resize(int(m_messages.iLength));
        for (quint32 iAt = 0; iAt < m_hashes.iLength; iAt += 8) {
            if (!checkMessage(read32(m_hashes.iStart + iAt + 4)))
                return false;
        }
        return true;
    }

    // Walks one message to its end. A place that an earlier walk went on from is not walked again.
    bool checkMessage(quint32 iAt)
    {
        while (iAt < m_messages.iLength) {
            if (m_checked.testBit(int(iAt)))
                return true;
            m_checked.setBit(int(iAt));
            const uchar tag = m_pData[m_messages.iStart + iAt];
            ++iAt;
            if (tag == End)
                return true;
            if (tag != Translation && tag != Obsolete && tag != SourceText && tag != Context && tag != Comment)
                return false;
            if (m_messages.iLength - iAt < 4)
                return false;
            const quint32 iLength = read32(m_messages.iStart + iAt);
            iAt += 4;
            if (tag == Obsolete)
                continue;
            if (iLength > m_messages.iLength - iAt)
                return false;
            iAt += iLength;
        }
        return false;
    }

    const uchar* m_pData;
    quint32 m_iSize;
    Block m_hashes;
    Block m_messages;
    QBitArray m_checked;
};

} // namespace

Catalogue::Catalogue() {}

bool Catalogue::load(const QString& strFile)
{
    QFile file(strFile);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QByteArray content = file.read(s_iMaxFileSize + 1);
    if (content.size() > s_iMaxFileSize || !QmCheck(content).isSound())
        return false;
    content.squeeze(); // reading took room for the largest file there may be
    m_content = content;
    return m_translator.load(reinterpret_cast<const uchar*>(m_content.constData()), m_content.size());
}

QString Catalogue::text(const QByteArray& strContext, const QByteArray& strId) const
{
    return m_translator.translate(strContext.constData(), strId.constData());
}

QString Catalogue::shortcut(const QByteArray& strContext, const QByteArray& strId) const
{
    // Where no entry has the comment, the translator answers with the one that has none: the id's text.
    const QString strKey = m_translator.translate(strContext.constData(), strId.constData(), s_szShortcut);
    return strKey == text(strContext, strId) ? QString() : strKey;
}
