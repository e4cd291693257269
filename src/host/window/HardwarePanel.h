#ifndef LINKHAND_HOST_HARDWAREPANEL_H
#define LINKHAND_HOST_HARDWAREPANEL_H

#include <QWidget>

class Modem;
class QComboBox;
class QLabel;
class QPushButton;

// Which hardware the program goes by, the choice for its next start, and what is known of a real modem.
class HardwarePanel : public QWidget
{
    Q_OBJECT

public:
    // The modem outlives the panel. Without one it is as with the simulated one.
    HardwarePanel(Modem* pModem, QWidget* pParent);

    void Retranslate();

    // Makes box and button as wide as what is in them, for a place that is much wider.
    void KeepToContent();

public slots:
    // Another panel has kept it.
    void SetChoice(const QString& strChoice);

signals:
    void choiceKept(const QString& strChoice);

private slots:
    void OnChosen(int iIndex);
    void OnPortEntered();
    void OnStatusChanged();
    void OnEnable();

private:
    void choose(const QString& strChoice);
    void showChoice();

    Modem* m_pModem;
    QLabel* m_pTitle;
    QComboBox* m_pChoice;
    QLabel* m_pNote; // what the choice has led to
    QLabel* m_pState;
    QPushButton* m_pEnable;
    const QString m_strCurrent;
    QString m_strChosen; // for the next start
    bool m_bRefused;     // the last choice could not be kept
    bool m_bAsking;      // the user, before it is kept
};

#endif // LINKHAND_HOST_HARDWAREPANEL_H
