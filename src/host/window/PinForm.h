#ifndef LINKHAND_HOST_PINFORM_H
#define LINKHAND_HOST_PINFORM_H

#include <QString>

#include "linkhand/core/ExtendDialog.h"

class Modem;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

// Asks for the card's PIN. What is typed goes to the modem, once, and is gone from the form at the same moment. Before
// the last try, and where nobody knows how many are left, a second word is wanted. It closes when the card is open.
class PinForm : public ExtendDialog
{
    Q_OBJECT

public:
    // The modem outlives the form.
    PinForm(Modem& modem, QWidget* pParent);
    ~PinForm() override;

    // In the language that is now chosen; what was typed stays.
    void Retranslate();

private slots:
    void OnStatusChanged();
    void OnEdited();
    void OnUnlock();
    void OnAnswered(bool bDone, bool bWrong, const QString& strDetail);

private:
    void showResult(const char* pszId, const QString& strDetail);
    bool isLast() const;

    Modem& m_modem;
    QLabel* m_pHint;
    QLabel* m_pTries;
    QLineEdit* m_pPin;
    QLabel* m_pResult;
    QLabel* m_pWarning;
    QCheckBox* m_pSure;
    QPushButton* m_pUnlock;
    QPushButton* m_pClose;
    const char* m_pszResult; // the id of what is shown there, or null
    QString m_strDetail;     // and the modem's words in it
    bool m_bAsked;           // the modem has not answered yet
};

#endif // LINKHAND_HOST_PINFORM_H
