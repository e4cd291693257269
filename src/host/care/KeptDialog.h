#ifndef LINKHAND_HOST_CARE_KEPTDIALOG_H
#define LINKHAND_HOST_CARE_KEPTDIALOG_H

#include "care/DetailTasks.h"
#include "linkhand/core/ExtendDialog.h"

class QComboBox;
class QLabel;
class QPlainTextEdit;

// Words for what is kept with a contact.
namespace KeptText
{

// What a property is called, by its head.
QString Title(const QString& strHead);

// Its value in one line.
QString Value(const KeptProperty& property);

} // namespace KeptText

// Asks for the value of a property, and for a new one what it is.
class KeptDialog : public ExtendDialog
{
    Q_OBJECT

public:
    // With an empty head the user chooses what it is.
    KeptDialog(const KeptProperty& property, QWidget* pParent);

    // The name of a new property, or the head of the one that was given.
    QString Head() const;
    QString Value() const;

private slots:
    void OnKindChosen();

private:
    const QString m_strHead;
    QComboBox* m_pKind;
    QLabel* m_pHint;
    QPlainTextEdit* m_pValue;
};

#endif // LINKHAND_HOST_CARE_KEPTDIALOG_H
