#include <QScopedPointer>
#include <QtTest>

#include <link.h>

#include <cstring>
#include <random>

#include "StandInFolder.h"
#include "loader/SharedObject.h"

namespace
{

ElfW(Ehdr) * headerOf(QByteArray& bytes)
{
    return reinterpret_cast<ElfW(Ehdr)*>(bytes.data());
}

ElfW(Phdr) * segmentsOf(QByteArray& bytes)
{
    return reinterpret_cast<ElfW(Phdr)*>(bytes.data() + headerOf(bytes)->e_phoff);
}

void anotherKind(QByteArray& bytes)
{
    headerOf(bytes)->e_type = ET_EXEC;
}

void anotherWordSize(QByteArray& bytes)
{
    bytes[EI_CLASS] = char(sizeof(void*) == 8 ? ELFCLASS32 : ELFCLASS64);
}

void anotherByteOrder(QByteArray& bytes)
{
    bytes[EI_DATA] = char(Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? ELFDATA2MSB : ELFDATA2LSB);
}

void noByteOrder(QByteArray& bytes)
{
    bytes[EI_DATA] = 17;
}

void noMark(QByteArray& bytes)
{
    bytes[0] = 'X';
}

void noSegments(QByteArray& bytes)
{
    headerOf(bytes)->e_phnum = 0;
}

void moreSegmentsThanThereIsRoomFor(QByteArray& bytes)
{
    headerOf(bytes)->e_phnum = 0xFFF0;
}

// The dynamic linker would read 65535 of them.
void segmentsCountedInASection(QByteArray& bytes)
{
    headerOf(bytes)->e_phnum = PN_XNUM;
    reinterpret_cast<ElfW(Shdr)*>(bytes.data() + headerOf(bytes)->e_shoff)->sh_info = 1;
}

void segmentsOfAnotherSize(QByteArray& bytes)
{
    headerOf(bytes)->e_phentsize = 8;
}

void segmentsBehindTheEnd(QByteArray& bytes)
{
    headerOf(bytes)->e_phoff = ElfW(Off)(-16);
}

void aSegmentBehindTheEnd(QByteArray& bytes)
{
    segmentsOf(bytes)[1].p_offset = ElfW(Off)(bytes.size()) + 1;
}

void aSegmentLongerThanTheFile(QByteArray& bytes)
{
    segmentsOf(bytes)[0].p_filesz = ElfW(Xword)(-1);
}

} // namespace

typedef void (*Spoil)(QByteArray&);
Q_DECLARE_METATYPE(Spoil)

class TestHostSharedObject : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aLibraryIsWhole();
    void aSpoiltHeaderIsRefused_data();
    void aSpoiltHeaderIsRefused();
    void aLibraryCutInItsSegmentsIsRefused();
    void anyHeaderAtAllIsJudged();

private:
    bool isWhole(const QByteArray& bytes);

    QByteArray m_library;
    QTemporaryFile m_file;
};

void TestHostSharedObject::initTestCase()
{
    StandInFolder folder;
    QFile library(folder.Add("StandInPlugin"));
    QVERIFY(library.open(QIODevice::ReadOnly));
    m_library = library.readAll();
    QVERIFY(m_library.size() > 1000);
    QVERIFY(m_file.open());
}

bool TestHostSharedObject::isWhole(const QByteArray& bytes)
{
    if (!m_file.resize(0) || !m_file.seek(0) || m_file.write(bytes) != bytes.size() || !m_file.flush()) {
        qFatal("cannot write %s", qPrintable(m_file.fileName()));
    }
    return SharedObject::IsWhole(m_file);
}

void TestHostSharedObject::aLibraryIsWhole()
{
    QVERIFY(isWhole(m_library));
}

void TestHostSharedObject::aSpoiltHeaderIsRefused_data()
{
    QTest::addColumn<Spoil>("spoil");
    QTest::newRow("another kind of file") << Spoil(&anotherKind);
    QTest::newRow("another word size") << Spoil(&anotherWordSize);
    QTest::newRow("another byte order") << Spoil(&anotherByteOrder);
    QTest::newRow("no byte order") << Spoil(&noByteOrder);
    QTest::newRow("no mark") << Spoil(&noMark);
    QTest::newRow("no segments") << Spoil(&noSegments);
    QTest::newRow("more segments than there is room for") << Spoil(&moreSegmentsThanThereIsRoomFor);
    QTest::newRow("segments counted in a section") << Spoil(&segmentsCountedInASection);
    QTest::newRow("segments of another size") << Spoil(&segmentsOfAnotherSize);
    QTest::newRow("segments behind the end") << Spoil(&segmentsBehindTheEnd);
    QTest::newRow("a segment behind the end") << Spoil(&aSegmentBehindTheEnd);
    QTest::newRow("a segment longer than the file") << Spoil(&aSegmentLongerThanTheFile);
}

void TestHostSharedObject::aSpoiltHeaderIsRefused()
{
    QFETCH(Spoil, spoil);
    QByteArray bytes = m_library;
    spoil(bytes);
    QVERIFY(!isWhole(bytes));
}

void TestHostSharedObject::aLibraryCutInItsSegmentsIsRefused()
{
    ElfW(Off) end = 0;
    for (int i = 0; i < headerOf(m_library)->e_phnum; ++i) {
        end = qMax(end, segmentsOf(m_library)[i].p_offset + segmentsOf(m_library)[i].p_filesz);
    }
    for (int iSize = 0; iSize < int(end); iSize += iSize < 1024 ? 1 : 97) {
        QVERIFY2(!isWhole(m_library.left(iSize)), qPrintable(QString::number(iSize)));
    }
    QVERIFY(!isWhole(m_library.left(int(end) - 1)));
}

// Whatever stands in a header and its segments: a judgement and no crash; what is called whole is so.
void TestHostSharedObject::anyHeaderAtAllIsJudged()
{
    std::mt19937 random(1);
    const auto below = [&random](int iEnd) { return int(random() % unsigned(iEnd)); };
    int iWhole = 0;
    for (int i = 0; i < 5000; ++i) {
        QByteArray bytes = m_library;
        for (int iChange = below(4); iChange >= 0; --iChange) {
            bytes[below(2) != 0 ? below(int(sizeof(ElfW(Ehdr)))) : below(1024)] =
                char(below(3) == 0 ? 0xFF : below(256));
        }
        if (below(2) != 0) {
            bytes.truncate(below(int(bytes.size())));
        }
        if (isWhole(bytes)) {
            ++iWhole;
            QVERIFY(std::memcmp(bytes.constData(), ELFMAG, SELFMAG) == 0);
            for (int iSegment = 0; iSegment < headerOf(bytes)->e_phnum; ++iSegment) {
                ElfW(Phdr) segment;
                std::memcpy(&segment, bytes.constData() + headerOf(bytes)->e_phoff + iSegment * int(sizeof segment),
                            sizeof segment);
                QVERIFY(segment.p_offset <= ElfW(Off)(bytes.size()) &&
                        segment.p_filesz <= ElfW(Xword)(bytes.size()) - segment.p_offset);
            }
        }
    }
    QVERIFY(iWhole > 100);
}

QTEST_GUILESS_MAIN(TestHostSharedObject)
#include "test_host_sharedobject.moc"
