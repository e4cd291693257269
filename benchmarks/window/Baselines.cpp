#include "Baselines.h"

#include <QCoreApplication>
#include <QTableWidget>

#include <sqlite3.h>

#include <cstdio>

#include "orva/orva_sdk.h"

QVector<QStringList> makeContacts(int iCount)
{
    static const char* const s_lstGiven[] = {"Anna", "bert", "Carla", "DORA", "emil", "Frida", "Georg", "Hanna"};
    static const char* const s_lstFamily[] = {"Meyer", "Schulz", "Ngo", "Okafor", "da Silva", "Ivanova", "Smith"};
    QVector<QStringList> lstContacts;
    lstContacts.reserve(iCount);
    quint32 uiSeed = 12345;
    for (int i = 0; i < iCount; ++i) {
        uiSeed = uiSeed * 1664525u + 1013904223u;
        const QString strName =
            QString::fromLatin1("%1 %2 %3")
                .arg(QLatin1String(s_lstGiven[(uiSeed >> 8) % 8]), QLatin1String(s_lstFamily[(uiSeed >> 16) % 7]))
                .arg(uiSeed >> 12);
        // One contact in ten can be found by "z".
        const QString strNote = (uiSeed >> 20) % 10 == 0 ? QLatin1String("met at the zoo") : QLatin1String("a note");
        lstContacts.append(QStringList() << strName << QString::number(uiSeed) << QString::number(uiSeed ^ 0x5555)
                                         << QString::number(uiSeed >> 3)
                                         << QString::fromLatin1("mail%1@example.org").arg(i) << strNote);
    }
    return lstContacts;
}

bool storeContacts(const QVector<QStringList>& lstContacts)
{
    static const char* const s_lstKeys[] = {"Name", "Mobile", "officePhone", "homePhone", "email", "remark"};
    for (int i = 0; i < lstContacts.size(); ++i) {
        if (i % 200 == 0) {
            ORVA_PBSrv_EndTransaction(4);
            ORVA_PBSrv_BeginTransaction(4);
        }
        void* hRecord = nullptr;
        if (ORVA_PBSrv_CreateAddrRecord(4, &hRecord) != 0)
            return false;
        for (int iField = 0; iField < 6; ++iField)
            ORVA_PBSrv_AddrRecord_SetValue(hRecord, s_lstKeys[iField], lstContacts.at(i).at(iField).utf16());
        int iId = 0;
        const long iResult = ORVA_PBSrv_AddAddrRec(hRecord, &iId);
        ORVA_PBSrv_AddrRecord_Release(hRecord);
        if (iResult != 0)
            return false;
    }
    ORVA_PBSrv_EndTransaction(4);
    return true;
}

bench::Time readPlainly(const QString& strDataFolder, QVector<QStringList>& lstRows)
{
    const QString strFile = strDataFolder + QLatin1String("/local.db");
    const bench::Stopwatch watch;
    sqlite3* pDatabase = nullptr;
    sqlite3_stmt* pStatement = nullptr;
    lstRows.clear();
    if (sqlite3_open_v2(strFile.toUtf8().constData(), &pDatabase, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK &&
        sqlite3_prepare_v2(pDatabase, "SELECT * FROM records ORDER BY id", -1, &pStatement, nullptr) == SQLITE_OK) {
        const int iColumns = sqlite3_column_count(pStatement);
        while (sqlite3_step(pStatement) == SQLITE_ROW) {
            QStringList lstValues;
            for (int iColumn = 1; iColumn < iColumns && lstValues.size() < 6; ++iColumn)
                lstValues.append(QString(static_cast<const QChar*>(sqlite3_column_text16(pStatement, iColumn)),
                                         sqlite3_column_bytes16(pStatement, iColumn) / 2));
            lstRows.append(lstValues);
        }
    }
    if (lstRows.isEmpty())
        std::fprintf(stderr, "%s: %s\n", qPrintable(strFile), sqlite3_errmsg(pDatabase));
    sqlite3_finalize(pStatement);
    sqlite3_close(pDatabase);
    return watch.elapsed();
}

bench::Time fillBareTable(const QVector<QStringList>& lstRows, bool bSort)
{
    QTableWidget table;
    table.resize(700, 500);
    table.show();
    QCoreApplication::processEvents();
    const bench::Stopwatch watch;
    table.setColumnCount(6);
    table.setRowCount(lstRows.size());
    for (int iRow = 0; iRow < lstRows.size(); ++iRow) {
        for (int iColumn = 0; iColumn < 6; ++iColumn)
            table.setItem(iRow, iColumn, new QTableWidgetItem(lstRows.at(iRow).at(iColumn)));
    }
    if (bSort)
        table.sortItems(0);
    QCoreApplication::processEvents();
    return watch.elapsed();
}
