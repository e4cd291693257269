#ifndef LINKHAND_SIBLINGS_RECIPIENTDIALOG_H
#define LINKHAND_SIBLINGS_RECIPIENTDIALOG_H

#include <QString>
#include <QStringList>

#include "linkhand/core/ExtendDialog.h"

class QLineEdit;
class QPushButton;
class QTreeWidget;

// All contacts by name with a search, of whom some are chosen as recipients.
class RecipientDialog : public ExtendDialog
{
    Q_OBJECT

public:
    // strPlugin is the plug-in whose texts are shown, and the beginning of the widgets' object names.
    RecipientDialog(const QString& strPlugin, QWidget* pParent);

    // The numbers that are chosen.
    QStringList Numbers() const;

private slots:
    void OnSearch();
    void OnSelectionChanged();

private:
    QString text(const char* pszId) const;
    void name(QWidget* pWidget, const char* pszRole);

    const QString m_strPlugin;
    QLineEdit* m_pSearch;
    QTreeWidget* m_pList;
    QPushButton* m_pAdd;
};

#endif // LINKHAND_SIBLINGS_RECIPIENTDIALOG_H
