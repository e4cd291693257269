#ifndef TESTS_GUI_CONTACTS_CONTACTSSUPPORT_H
#define TESTS_GUI_CONTACTS_CONTACTSSUPPORT_H

#include <QLineEdit>
#include <QPushButton>

#include <functional>

#include "../window/WindowFixture.h"
#include "dialogs/AddrBookEditDlg.h"
#include "dialogs/AddrBookWaitingDlg.h"

// What a user needs of the form.
struct AddrBookEditDlgAccess {
    AddrBookEditDlg* d;

    AddrBookNewContactExtendDialog* window() const { return d->m_pExtendDialog; }
    NewContactLineEdit* name() const { return d->m_pNameEdit; }
    // The first number: a field of its own on the PC, the first of the others on card and device.
    NewContactLineEdit* mobile() const
    {
        return d->m_pMobileEdit != nullptr    ? d->m_pMobileEdit.data()
               : d->m_lstFieldItems.isEmpty() ? nullptr
                                              : d->m_lstFieldItems.first().pLineEdit.data();
    }
    NewContactTextEdit* remarks() const { return d->m_pRemarksEdit; }
    QPushButton* ok() const { return d->m_pOkButton; }
    QPushButton* cancel() const { return d->m_pCancelButton; }
    int editedId() const { return d->m_record.iID; }
};

// The user of the contact forms that open while it lives: acts on each as soon as it is shown. A form that is then
// still open is left.
class FormUser : public QObject
{
    Q_OBJECT

public:
    typedef std::function<void(AddrBookEditDlgAccess)> Act;
    explicit FormUser(Act act);

    // Types name and number, and presses OK.
    FormUser(const QString& name, const QString& number);

    int forms() const { return m_forms; }
    QString title() const { return m_title; }
    QWidget* parentOfForm() const { return m_parent; }
    QString firstName() const { return m_name; }     // as the form opened
    QString firstNumber() const { return m_number; } // as the form opened
    bool okAtFirst() const { return m_ok; }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private slots:
    void act();

private:
    Act m_act;
    int m_forms;
    QString m_title;
    QWidget* m_parent;
    QString m_name;
    QString m_number;
    bool m_ok;
};

namespace Contacts
{

// n contacts, "<prefix> 1" with number 1001 and so on, with as many values as the memory has fields.
QList<AddrBookRecord> records(int memory, const QString& prefix, int n);

// The same in the store. Returns their identifiers.
QList<int> fill(int memory, const QString& prefix, int n);

// Runs a function on the user-interface thread in front of the result of the nth call of a worker's operation.
void atRecord(const QByteArray& operation, int nth, std::function<void()> function);

// The progress window on the screen; null if there is none.
ABWaitingDlg* waitingWindow();
QPushButton* cancelButton();

void selectAll(const WindowFixture& f);

// Rows in one range, as a user's Shift gives them.
void selectRange(const WindowFixture& f, int top, int bottom);

// Up to the end of the batch and of the read behind it.
bool waitBatch(const WindowFixture& f);

// "288 4 111" for each push to the notification service: code, memory, number.
QStringList pushes();

} // namespace Contacts

#endif // TESTS_GUI_CONTACTS_CONTACTSSUPPORT_H
