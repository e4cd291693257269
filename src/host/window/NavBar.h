#ifndef LINKHAND_HOST_NAVBAR_H
#define LINKHAND_HOST_NAVBAR_H

#include <QFrame>
#include <QList>
#include <QString>

#include "text/LanguageCatalog.h"
#include "window/Glyphs.h"
#include "window/NavButton.h"

class QActionGroup;
class QAction;
class QButtonGroup;
class QMenu;
class QVBoxLayout;

// The bar at the side: a button for each page, and below them the device panel and the languages.
class NavBar : public QFrame
{
    Q_OBJECT

public:
    explicit NavBar(QWidget* pParent);

    // Adds the button of the page with the given number, counted from 0, and gives it the shortcut Alt+number+1.
    void AddPage(int iPage, const QString& strName, Glyphs::Glyph enGlyph);
    void SetPageText(int iPage, const QString& strText);
    void SetCurrentPage(int iPage);

    void SetLanguages(const QList<LanguageEntry>& listEntries, const QString& strCurrent);
    void SetDeviceShown(bool bShown);

    // False takes the device button away.
    void SetDeviceAvailable(bool bAvailable);

    void Retranslate();

    // Gives the buttons what room there is: for their words as well, or for their pictures alone. Called when the
    // window has another size.
    void FitButtons();

    // As high as the pictures alone.
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;

signals:
    void pageChosen(int iPage);
    void languageChosen(const QString& strCode);
    void deviceToggled(bool bShown);

private slots:
    void OnLanguageClicked();
    void OnLanguageChosen(QAction* pAction);

private:
    QList<NavButton*> buttons() const;
    QSize sizeIn(NavButton::Form enForm) const;

    QVBoxLayout* m_pPagesLayout;
    QButtonGroup* m_pPages;
    NavButton* m_pDevice;
    NavButton* m_pLanguage;
    QMenu* m_pLanguageMenu;
    QActionGroup* m_pLanguageActions;
};

#endif // LINKHAND_HOST_NAVBAR_H
