#ifndef ADDRBOOKUIPLUGIN_CHOOSEPHONENUMBER_H
#define ADDRBOOKUIPLUGIN_CHOOSEPHONENUMBER_H

#include <QObject>
#include <QPointer>
#include <QPushButton>
#include <QStringList>
#include <QTableWidget>

#include "linkhand/core/ExtendDialog.h"

// Asks which number of a contact to call, and places the call. One object serves all calls: each show builds a window
// of its own, which deletes itself once closed. User-interface thread only.
class ChoosePhoneNumber : public QObject
{
    Q_OBJECT

public:
    explicit ChoosePhoneNumber(QObject* pParent = nullptr);
    ~ChoosePhoneNumber() override;

    // Shows the numbers with their labels, which run in parallel and are translated already; returns at once.
    void ShowPhoneNumDlg(QWidget* pParent, QStringList lstNumbers, QStringList lstTypes);

    // Builds the window, without rows.
    void createPhoneNumDlg(QWidget* pParent);

    // Sets all texts.
    void changeLang();

public slots:
    void onOkButtonClicked();
    void onCancelButtonClicked();

private:
    Q_DISABLE_COPY(ChoosePhoneNumber)

    bool createParts(QWidget* pParent);
    void setUpTable();
    void layOutParts();
    void setUpWindow();
    QPushButton* cancelButton() const;

    // Everything belongs to the window once it is built, and goes with it.
    QPointer<ExtendDialog> m_pExtendDialog; // null again once closed
    QPointer<QWidget> m_pMainWidget;
    QPointer<QTableWidget> m_ptableNumbers;
    QTableWidgetItem* m_pitemTypeHeader; // valid as long as the table
    QTableWidgetItem* m_pitemValueHeader;
    QPointer<QPushButton> m_pbuttonOK;
};

#endif // ADDRBOOKUIPLUGIN_CHOOSEPHONENUMBER_H
