#ifndef LINKHAND_SIBLINGS_MESSAGEEDITOR_H
#define LINKHAND_SIBLINGS_MESSAGEEDITOR_H

#include <QString>
#include <QStringList>
#include <QWidget>

#include "shared/HostLink.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

// The form in which a message is written: recipients, for an MMS a subject, and the text. Sending hands it to the
// host, which keeps it in the outbox.
class MessageEditor : public QWidget
{
    Q_OBJECT

public:
    // strPlugin is the plug-in whose texts are shown, and the beginning of the widgets' object names.
    MessageEditor(const QString& strPlugin, HostMessageKind enKind, QWidget* pParent = nullptr);

    void SetRecipients(const QStringList& lstNumbers);
    QStringList GetRecipients() const;
    void SetText(const QString& strText);
    void SetSubject(const QString& strSubject);

    // What stands in the form is where its user begins, and the draft or unsent message iId is what it is about, or
    // with 0 none.
    void Begin(int iId);
    int Draft() const { return m_iDraft; }

    // Asks what becomes of a text that somebody has written, and sees to it. False if the form is to stay.
    bool MayClose();

    // Keeps such a text as a draft without a question. False if that failed.
    bool KeepUnsaved();
    void Retranslate();

signals:
    // The message lies in the outbox.
    void sent();

    // The user is done with the form.
    void closed();

protected:
    void showEvent(QShowEvent* pEvent) override;

private slots:
    void OnEdited();
    void OnContactsRead();
    void OnByName();
    void OnAddRecipients();
    void OnSaveNumber();
    void OnSend();

private:
    bool isReal() const;
    bool isUnsaved() const;
    bool send();
    QString contents() const;
    QString recipientsText(const QStringList& lstNumbers) const;
    QString reasonAgainst(const QString& strRecipient) const;
    QString lengthText(const QStringList& lstNumbers) const;
    QString text(const char* pszId) const;
    void name(QWidget* pWidget, const char* pszRole);
    void makeLayout();
    void report(const char* pszId);

    const QString m_strPlugin;
    const HostMessageKind m_enKind;
    int m_iDraft;
    QString m_strBegun; // the contents as they were opened, kept or sent
    QLabel* m_pToLabel;
    QLineEdit* m_pTo;
    QPushButton* m_pByName;
    QPushButton* m_pAdd;
    QPushButton* m_pSave;
    QLabel* m_pRecipients; // who they are
    QLabel* m_pSubjectLabel;
    QLineEdit* m_pSubject;
    QPlainTextEdit* m_pText;
    QLabel* m_pLength;
    QPushButton* m_pSend;
    QPushButton* m_pClose;
};

#endif // LINKHAND_SIBLINGS_MESSAGEEDITOR_H
