#ifndef LINKHAND_TESTS_CARESETUP_H
#define LINKHAND_TESTS_CARESETUP_H

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include "RealStore.h"
#include "WindowSetup.h"
#include "fit/PageView.h"
#include "orva/orva_care.h"
#include "orva/orva_store.h"

// The care page in the main window, on an empty phonebook of its own.
class CareSetup : public WindowSetup
{
    Q_OBJECT

protected:
    void beginCare()
    {
        m_pData.reset(new QTemporaryDir);
        QCOMPARE(ORVA_Sim_Reset(QFile::encodeName(m_pData->path()).constData()), long(ORVA_OK));
        begin();
        build(QStringList());
    }

    void endCare()
    {
        end();
        QCOMPARE(ORVA_Sim_Reset(nullptr), long(ORVA_OK));
    }

    // Opens the page at a section and lets it read.
    void openSection(const char* pszSection)
    {
        m_pWindow->ShowPage("Care");
        PageView* const pView = PageView::Of(find<QWidget>((QByteArray("linkhand_Care_") + pszSection).constData()));
        QVERIFY(pView != nullptr);
        find<QTabWidget>("linkhand_Care_tabs")->setCurrentWidget(pView);
    }

    int add(const QStringList& lstValues) { return RealStore::addContact(ORVA_MEMORY_LOCAL, lstValues); }

    QString dataFolder() const { return m_pData->path(); }

    static int contacts()
    {
        int iSize = -1;
        ORVA_PBSrv_GetSize(ORVA_MEMORY_LOCAL, &iSize);
        return iSize;
    }

    // The texts of a list, row by row.
    QList<QStringList> rows(const char* pszList)
    {
        const QAbstractItemModel* pModel = find<QAbstractItemView>(pszList)->model();
        QList<QStringList> listRows;
        for (int iRow = 0; iRow < pModel->rowCount(); ++iRow) {
            QStringList lstCells;
            for (int i = 0; i < pModel->columnCount(); ++i) {
                lstCells << pModel->index(iRow, i).data().toString();
            }
            listRows << lstCells;
        }
        return listRows;
    }

    QStringList column(const char* pszList, int iColumn)
    {
        QStringList lstTexts;
        foreach (const QStringList& lstCells, rows(pszList)) {
            lstTexts << lstCells.at(iColumn);
        }
        return lstTexts;
    }

    // Selects the first row with a text in a column.
    bool select(const char* pszList, int iColumn, const QString& strText)
    {
        QAbstractItemView* pView = find<QAbstractItemView>(pszList);
        const int iRow = column(pszList, iColumn).indexOf(strText);
        if (iRow >= 0) {
            pView->setCurrentIndex(pView->model()->index(iRow, 0));
        }
        return iRow >= 0;
    }

    void click(const char* pszButton) { QTest::mouseClick(find<QPushButton>(pszButton), Qt::LeftButton); }
    QString told() { return find<QLabel>("linkhand_Care_told")->text(); }

private:
    QScopedPointer<QTemporaryDir> m_pData;
};

#endif // LINKHAND_TESTS_CARESETUP_H
