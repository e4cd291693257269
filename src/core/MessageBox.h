#ifndef LINKHAND_CORE_MESSAGEBOX_H
#define LINKHAND_CORE_MESSAGEBOX_H

#include <QCloseEvent>
#include <QDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QString>
#include <QStringList>
#include <QWidget>

// The host's message box. Unlike its base it tells a click on its only button from a box that was closed.
class MessageBox : public QMessageBox
{
    Q_OBJECT

public:
    MessageBox(QMessageBox::Icon enIcon, QWidget* pParent, const QString& strCaption, const QString& strText);

    ~MessageBox() override;

    // Has *ppDialog hold the box for as long as there is one.
    void setHolder(QDialog** ppDialog);

    // Adds the buttons for these language ids, leaving out empty ones. The first or the last one is the default.
    void setButtons(const QStringList& lstIds, bool bFirstIsDefault);

    // The button that closed the box: QMessageBox::Ok for the first, QMessageBox::Cancel for "IDS_CANCEL" and for a
    // box closed otherwise; No and Ignore for a further second and third one.
    int answer() const;

    // The answer, for a box that is not shown, that agrees to nothing: "IDS_CANCEL" where there is one, also where a
    // question has a single button, else the only button.
    static int harmlessAnswer(QMessageBox::Icon enIcon, const QStringList& lstIds);

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QDialog** m_ppHolder;
};

#endif // LINKHAND_CORE_MESSAGEBOX_H
