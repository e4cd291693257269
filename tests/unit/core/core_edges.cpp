#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryFile>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

#include "FakeHost.h"
#include "linkhand/core/CommonUtils.h"
#include "linkhand/core/ToolBarLogic.h"

// Cases at the edge of what texts, files and boxes hold.
class CoreEdges : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pHost.reset(new FakeHost); }
    void cleanup()
    {
        QApplication::setLayoutDirection(Qt::LeftToRight);
        m_pHost.reset();
    }

    void eachOfThreeButtonsHasAnAnswerOfItsOwn();
    void aToolWithoutANumberIsLeftOut();
    void checkedToolsAreCheckedEachForItself();
    void emptyParenthesesAreNoCount();
    void aMailAddressWithANumberSignStaysOneAddress();
    void aDomainThatEndsInOneLetterIsNone();

private:
    QScopedPointer<FakeHost> m_pHost;
};

void CoreEdges::eachOfThreeButtonsHasAnAnswerOfItsOwn()
{
    const QList<int> answers{QMessageBox::Ok, QMessageBox::No, QMessageBox::Ignore};
    for (int i = 0; i < answers.size(); ++i) {
        QTimer presser;
        connect(&presser, &QTimer::timeout, this, [&presser, i]() {
            QMessageBox* pBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (pBox == nullptr || !pBox->isVisible())
                return;
            presser.stop();
            for (QPushButton* pButton : pBox->findChildren<QPushButton*>()) {
                if (pButton->text() == QString("button %1").arg(i + 1)) {
                    pButton->click();
                    return;
                }
            }
            pBox->reject();
        });
        presser.start(0);
        QCOMPARE(CommonUtils::ShowMessage(QMessageBox::Question, nullptr, "caption", "text", "button 1", "button 2",
                                          "button 3", true, Qt::WindowCloseButtonHint, nullptr, "", true),
                 answers.at(i));
    }
}

void CoreEdges::aToolWithoutANumberIsLeftOut()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("<config><toolbar>"
               "<toolitem id=\"1\" tip=\"a\"/><toolitem tip=\"b\"/><toolitem id=\"\" tip=\"c\"/>"
               "<toolitem id=\"5x\" tip=\"d\"/><toolitem id=\"0\" tip=\"e\"/><toolitem id=\"99999999999\" tip=\"f\"/>"
               "</toolbar></config>");
    file.close();
    QList<ToolItem> items;
    bool bFlag = true;
    ToolBarLogic::GetXmlData(file.fileName(), items, bFlag, "AddrBookUIPlugin");
    QStringList lstTips;
    for (const ToolItem& item : qAsConst(items))
        lstTips << item.strTipId;
    QCOMPARE(lstTips, QStringList() << "a"
                                    << "e");
}

void CoreEdges::checkedToolsAreCheckedEachForItself()
{
    QWidget bar;
    QList<ToolItem> items;
    bool bFlag = true;
    ToolBarLogic::GetXmlData(m_pHost->strLibraryPath + "/plugins/AddrBookUIPlugin/Config.xml", items, bFlag,
                             "AddrBookUIPlugin");
    QButtonGroup* pGroup = nullptr;
    QVERIFY(ToolBarLogic::CreateToolBar("AddrBookUIPlugin", &bar, items, &pGroup, nullptr, nullptr, nullptr));
    for (QAbstractButton* pButton : pGroup->buttons()) {
        pButton->setCheckable(true);
        pButton->setChecked(true);
    }
    for (const QAbstractButton* pButton : pGroup->buttons())
        QVERIFY(pButton->isChecked());
    pGroup->buttons().first()->click();
    QVERIFY(!pGroup->buttons().first()->isChecked());
}

void CoreEdges::emptyParenthesesAreNoCount()
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    const QChar leftToRight(0x200e);
    const QChar rightToLeft(0x200f);
    QString strText = "Name()";
    CommonUtils::ParanthesisCorrectionForHeAndAr(strText);
    QCOMPARE(strText, leftToRight + QString("Name()") + leftToRight);
    strText = "Name(1)";
    CommonUtils::ParanthesisCorrectionForHeAndAr(strText);
    QCOMPARE(strText, QString("Name(") + rightToLeft + "1)" + rightToLeft);
}

void CoreEdges::aMailAddressWithANumberSignStaysOneAddress()
{
    // What follows the sign would be lost as a fragment.
    QCOMPARE(CommonUtils::ParseAndCreateHyperLinks("a#b@example.org"),
             QString("<a href=\"mailto:a%23b@example.org\">a#b@example.org</a>"));
}

void CoreEdges::aDomainThatEndsInOneLetterIsNone()
{
    QCOMPARE(CommonUtils::ParseAndCreateHyperLinks("ann@example.o"), QString("ann@example.o"));
    QCOMPARE(CommonUtils::ParseAndCreateHyperLinks("ann@e.org"), QString("<a href=\"mailto:ann@e.org\">ann@e.org</a>"));
}

QTEST_MAIN(CoreEdges)
#include "core_edges.moc"
