#ifndef LINKHAND_SIBLINGS_RECIPIENTCOMPLETER_H
#define LINKHAND_SIBLINGS_RECIPIENTCOMPLETER_H

#include <QCompleter>
#include <QObject>
#include <QStandardItemModel>
#include <QString>

class QLineEdit;
class QModelIndex;

// Offers contacts while somebody types recipients: whoever has a name or a number that begins like the recipient that
// the cursor is in. The one that is chosen takes its place, as a number.
class RecipientCompleter : public QObject
{
    Q_OBJECT

public:
    // Belongs to the line; strName is the object name of the list that opens.
    RecipientCompleter(QLineEdit* pLine, const QString& strName);

private slots:
    void OnEdited();
    void OnContactsRead();
    void OnChosen(const QModelIndex& index);

private:
    void findRecipient(int& iFrom, int& iTo) const;
    void offer();

    QLineEdit* m_pLine;
    QStandardItemModel m_model;
    QCompleter m_completer;
    bool m_bTyping; // the list follows what is typed, also when contacts come later
};

#endif // LINKHAND_SIBLINGS_RECIPIENTCOMPLETER_H
