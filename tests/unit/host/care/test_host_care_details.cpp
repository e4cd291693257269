#include <QComboBox>
#include <QPlainTextEdit>
#include <QTimer>

#include "CareSetup.h"

namespace
{

const char* const CONTACTS = "linkhand_Care_details_contacts";
const char* const LIST = "linkhand_Care_details_list";
const char* const EDIT = "linkhand_Care_details_edit";
enum Column { FIELD, VALUE };

} // namespace

class TestHostCareDetails : public CareSetup
{
    Q_OBJECT

private slots:
    void init() { beginCare(); }
    void cleanup() { endCare(); }

    void whatIsKeptIsShownInWords()
    {
        addKept("Ada", "ADR;TYPE=HOME:;;1 Main\\, Street;Town;;;\r\nTEL;TYPE=WORK,FAX:5\r\nX-OTHER:a\r\n");
        addKept("Bo", "");
        openSection("details");
        QTRY_COMPARE(column(LIST, FIELD), QStringList() << "Address (Home)"
                                                        << "Further number (Office, fax)"
                                                        << "X-OTHER");
        QCOMPARE(column(LIST, VALUE).mid(0, 2), QStringList() << "1 Main, Street, Town"
                                                              << "5");
        QVERIFY(select(CONTACTS, 0, "Bo"));
        QTRY_VERIFY(rows(LIST).isEmpty());
        QVERIFY(!find<QPushButton>(EDIT)->isEnabled());
    }

    void aValueIsEditedAndStored()
    {
        const int iAda = addKept("Ada", "ADR;TYPE=HOME:;;1 Main Street;Town;;;\r\nBDAY:1990-12-31\r\n");
        openSection("details");
        QTRY_COMPARE(rows(LIST).size(), 2);
        answer(QString(), "\n\n2 Side Street; rear\nTown\n\n\n");
        click(EDIT);
        QTRY_COMPARE(told(), QString("The change is stored."));
        QCOMPARE(keptWith(iAda), QString("ADR;TYPE=HOME:;;2 Side Street\\; rear;Town;;;\r\nBDAY:1990-12-31\r\n"));
        QTRY_COMPARE(column(LIST, VALUE).value(0), QString("2 Side Street; rear, Town"));
    }

    void oneIsAddedAndRemoved()
    {
        const int iAda = addKept("Ada", "");
        openSection("details");
        QTRY_COMPARE(rows(CONTACTS).size(), 1);
        answer("Birthday", "1990-12-31");
        click("linkhand_Care_details_add");
        QTRY_COMPARE(column(LIST, FIELD), QStringList("Birthday"));
        QCOMPARE(keptWith(iAda), QString("BDAY:1990-12-31\r\n"));
        click("linkhand_Care_details_remove");
        QTRY_VERIFY(rows(LIST).isEmpty());
        QCOMPARE(keptWith(iAda), QString());
        // The fields are as they were.
        QCOMPARE(column(CONTACTS, 0), QStringList("Ada"));
    }

    void aPhotoIsShownAndNotEditedAsText()
    {
        QPixmap pixmap(8, 8);
        pixmap.fill(Qt::red);
        QByteArray octets;
        QBuffer buffer(&octets);
        QVERIFY(buffer.open(QIODevice::WriteOnly) && pixmap.save(&buffer, "PNG"));
        addKept("Ada", "PHOTO;ENCODING=b;TYPE=PNG:" + octets.toBase64() + "\r\n");
        openSection("details");
        QTRY_COMPARE(rows(LIST).size(), 1);
        QCOMPARE(rows(LIST).first(), QStringList() << "Photo (png)"
                                                   << "Size in KB: 1");
        QTRY_VERIFY(find<QLabel>("linkhand_Care_details_photo")->isVisible());
        QVERIFY(!find<QPushButton>(EDIT)->isEnabled());
    }

private:
    int addKept(const QString& strName, const QByteArray& lines)
    {
        void* pRecord = nullptr;
        int iId = 0;
        ORVA_PBSrv_CreateAddrRecord(ORVA_MEMORY_LOCAL, &pRecord);
        ORVA_PBSrv_AddrRecord_SetValue(pRecord, "Name", strName.utf16());
        ORVA_Care_SetKept(pRecord, lines.constData(), lines.size());
        ORVA_PBSrv_AddAddrRec(pRecord, &iId);
        ORVA_PBSrv_AddrRecord_Release(pRecord);
        return iId;
    }

    static QString keptWith(int iId)
    {
        void* pRecord = nullptr;
        char* pLines = nullptr;
        int iOctets = 0;
        ORVA_PBSrv_GetAddrRecord(iId, ORVA_MEMORY_LOCAL, &pRecord);
        ORVA_Care_GetKept(pRecord, &pLines, &iOctets);
        const QString strKept = QString::fromUtf8(pLines, iOctets);
        delete[] pLines;
        ORVA_PBSrv_AddrRecord_Release(pRecord);
        return strKept;
    }

    // Fills in the form when it comes, and presses OK.
    void answer(const QString& strKind, const QString& strValue)
    {
        QTimer* pTimer = new QTimer(m_pWindow.data());
        connect(pTimer, &QTimer::timeout, this, [=] {
            QWidget* pDialog = QApplication::activeModalWidget();
            if (pDialog == nullptr) {
                return;
            }
            pTimer->stop();
            QComboBox* pKind = pDialog->findChild<QComboBox*>("linkhand_Kept_kind");
            if (!strKind.isEmpty()) {
                pKind->setCurrentIndex(pKind->findText(strKind));
            }
            pDialog->findChild<QPlainTextEdit*>("linkhand_Kept_value")->setPlainText(strValue);
            pDialog->findChild<QPushButton*>("linkhand_Kept_ok")->click();
        });
        pTimer->start(5);
    }
};

QTEST_MAIN(TestHostCareDetails)
#include "test_host_care_details.moc"
