#ifndef TESTS_GUI_EDIT_EDITSUPPORT_H
#define TESTS_GUI_EDIT_EDITSUPPORT_H

#include <QLabel>
#include <QPushButton>
#include <QStringList>
#include <QTimer>

#include <functional>

#include "../support/DialogTest.h"
#include "dialogs/AddrBookEditDlg.h"

// What the tests see of the form's inside.
struct AddrBookEditDlgAccess {
    explicit AddrBookEditDlgAccess(AddrBookEditDlg& dialog) : d(dialog) {}

    QWidget* content() { return d.m_pMainWidget; }
    AddrBookNewContactExtendDialog* window() { return d.m_pExtendDialog; }
    QGridLayout* grid() { return d.m_pGridLayout; }
    QHBoxLayout* buttonRow() { return d.m_pButtonLayout; }
    QList<_AddrBookFieldItem>& items() { return d.m_lstFieldItems; }
    NewContactLineEdit* name() { return d.m_pNameEdit; }
    NewContactLineEdit* mobile() { return d.m_pMobileEdit; }
    NewContactTextEdit* remarks() { return d.m_pRemarksEdit; }
    QLabel* nameLabel() { return d.m_pNameLabel; }
    QLabel* mobileLabel() { return d.m_pMobileLabel; }
    QLabel* remarksLabel() { return d.m_pRemarksLabel; }
    QPushButton* ok() { return d.m_pOkButton; }
    QPushButton* cancel() { return d.m_pCancelButton; }
    QRegExpValidator* nameValidator() { return d.m_pNameValidator; }
    QRegExpValidator* mobileValidator() { return d.m_pMobileValidator; }
    QList<QString>& fieldNames() { return d.m_lstFieldNames; }
    int mobileIndex() const { return d.m_iMobileIndex; }
    QList<int> numberIndexes() const { return d.m_lstNumberIndexes; }
    AddrBookRecord& record() { return d.m_record; }
    QString prevName() const { return d.m_strPrevName; }
    QString prevRemarks() const { return d.m_strPrevRemarks; }
    int remarksMaxLength() const { return d.m_iRemarksMaxLength; }

    int height(int memory) { return d.getDialogHeight(static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(memory)); }
    static QString pattern(const QString& include, const QString& exclude, int max)
    {
        return AddrBookEditDlg::getQRegExpStr(include, exclude, QString::number(max));
    }
    bool passes(const QString& text, const QString& include, const QString& exclude, int max)
    {
        return d.checkSaveData(text, include, exclude, max);
    }
    bool overLong(const QString& text) { return d.IsContextOverLong(text) != 0; }

    // Line edits in the order of the form, then by the label under which the user finds them.
    QList<QLineEdit*> lineEdits() { return d.m_pMainWidget->findChildren<QLineEdit*>(); }

    AddrBookEditDlg& d;
};

// A form on a memory, built as the window builds it.
class EditForm
{
public:
    explicit EditForm(int memory, _ADDRBOOK_OPERATION_TYPE operation = ADDRBOOK_OP_ADD, int group = 0)
        : dialog(), access(dialog)
    {
        dialog.InitDialog(nullptr, group, static_cast<_ORVA_EN_PHONEBOOK_MEMORY>(memory), operation);
    }

    // Loads a stored contact, as the window's edit flow does.
    void load(int memory, int id)
    {
        AddrBookRecord record;
        record.iID = id;
        record.lstValues = FakeSdk::record(memory, id);
        dialog.SetEditCotactDetails(record);
    }

    // The inputs by the order of the memory's fields.
    QWidget* input(int index)
    {
        const QString label = access.fieldNames().value(index);
        int item = 0;
        for (int i = 0; i <= index; ++i) {
            const QString id = access.fieldNames().value(i);
            QWidget* edit = nullptr;
            if (id == "ID_STR_NAME" && access.name() != nullptr)
                edit = access.name();
            else if (id == "ID_STR_MOBILE_PHONE" && access.mobile() != nullptr)
                edit = access.mobile();
            else if (id == "ID_STR_NOTES" && access.remarks() != nullptr)
                edit = access.remarks();
            else if (item < access.items().size())
                edit = access.items().at(item++).pLineEdit;
            if (i == index)
                return edit;
        }
        return nullptr;
    }

    QString text(int index)
    {
        QWidget* edit = input(index);
        if (auto* line = qobject_cast<QLineEdit*>(edit))
            return line->text();
        return qobject_cast<QTextEdit*>(edit)->toPlainText();
    }

    void setText(int index, const QString& text)
    {
        QWidget* edit = input(index);
        if (auto* line = qobject_cast<QLineEdit*>(edit))
            line->setText(text);
        else
            qobject_cast<QTextEdit*>(edit)->setPlainText(text);
    }

    // Runs the form with a user who presses OK, and Cancel if that leaves it open.
    int save()
    {
        return run([this] {
            access.ok()->click();
            if (access.window() != nullptr && access.window()->isVisible())
                access.cancel()->click();
        });
    }

    // Runs the form with this user; a form left open is left with Escape's result.
    int run(const std::function<void()>& user)
    {
        QTimer::singleShot(0, access.window(), [this, user] {
            user();
            if (access.window() != nullptr && access.window()->isVisible())
                access.window()->reject();
        });
        return dialog.Exec();
    }

    AddrBookEditDlg dialog;
    AddrBookEditDlgAccess access;
};

inline FakeSdk::Field editField(const char* key, int length, const char* kind, const char* label,
                                const char* accepted = "null", const char* refused = "null")
{
    return FakeSdk::Field{key, length, accepted, refused, kind, false, label};
}

#endif // TESTS_GUI_EDIT_EDITSUPPORT_H
