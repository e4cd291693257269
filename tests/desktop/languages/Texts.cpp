#include "Texts.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QHash>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSet>
#include <QTextEdit>
#include <QTreeWidget>
#include <QXmlStreamReader>

namespace
{

// All texts of a language; those of one or two letters could be anything.
QSet<QString> textsOf(const QString& strLanguage)
{
    static QHash<QString, QSet<QString>> s_known;
    if (s_known.contains(strLanguage)) {
        return s_known.value(strLanguage);
    }
    QSet<QString> texts;
    QFile file(QString::fromLocal8Bit(qgetenv("LINKHAND_SOURCE_DIR")) + "/languages/linkhand_" + strLanguage + ".ts");
    if (file.open(QIODevice::ReadOnly)) {
        QXmlStreamReader reader(&file);
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.isStartElement() && reader.name() == QLatin1String("translation")) {
                texts.insert(reader.readElementText().trimmed());
            }
        }
    }
    s_known.insert(strLanguage, texts);
    return texts;
}

void addOwn(const QWidget* pWidget, QStringList& lstTexts)
{
    lstTexts << pWidget->windowTitle() << pWidget->toolTip().section(QLatin1String("  ("), 0, 0)
             << pWidget->accessibleName() << pWidget->accessibleDescription();
    if (const QAbstractButton* pButton = qobject_cast<const QAbstractButton*>(pWidget)) {
        lstTexts << pButton->text();
    } else if (const QLabel* pLabel = qobject_cast<const QLabel*>(pWidget)) {
        lstTexts << pLabel->text();
    } else if (const QLineEdit* pEdit = qobject_cast<const QLineEdit*>(pWidget)) {
        lstTexts << pEdit->placeholderText();
    } else if (const QTextEdit* pText = qobject_cast<const QTextEdit*>(pWidget)) {
        foreach (const QString& strLine, pText->toPlainText().split('\n')) {
            lstTexts << strLine << strLine.section(QLatin1Char(':'), 0, 0);
        }
    } else if (const QComboBox* pBox = qobject_cast<const QComboBox*>(pWidget)) {
        for (int i = 0; i < pBox->count(); ++i) {
            lstTexts << pBox->itemText(i);
        }
    } else if (const QMenu* pMenu = qobject_cast<const QMenu*>(pWidget)) {
        foreach (const QAction* pAction, pMenu->actions()) {
            lstTexts << pAction->text().section('\t', 0, 0).section(QLatin1String("  "), 0, 0);
        }
    } else if (const QHeaderView* pHeader = qobject_cast<const QHeaderView*>(pWidget)) {
        for (int i = 0; i < pHeader->count(); ++i) {
            lstTexts << pHeader->model()->headerData(i, pHeader->orientation()).toString();
        }
    } else if (const QTreeWidget* pTree = qobject_cast<const QTreeWidget*>(pWidget)) {
        for (int i = 0; i < pTree->topLevelItemCount(); ++i) {
            lstTexts << pTree->topLevelItem(i)->text(0).section('(', 0, 0);
        }
    }
}

} // namespace

QStringList Texts::Shown(QWidget* pRoot)
{
    QStringList lstTexts;
    addOwn(pRoot, lstTexts);
    foreach (const QWidget* pWidget, pRoot->findChildren<QWidget*>()) {
        if (pWidget->isVisibleTo(pRoot)) {
            addOwn(pWidget, lstTexts);
        }
    }
    lstTexts.removeAll(QString());
    lstTexts.removeDuplicates();
    return lstTexts;
}

QStringList Texts::Foreign(QWidget* pRoot, const QString& strOld, const QString& strNew)
{
    QStringList lstForeign;
    foreach (const QString& strText, Shown(pRoot)) {
        const QString strPlain = strText.trimmed();
        if (textsOf(strOld).contains(strPlain) && !textsOf(strNew).contains(strPlain)) {
            lstForeign << strPlain;
        }
    }
    return lstForeign;
}
