#include "SceneParts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QDir>
#include <QLineEdit>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTimer>

#include "care/CareRunner.h"
#include "care/ImportSection.h"
#include "fit/PageView.h"
#include "window/MainWindow.h"

namespace
{

int rowsOf(const char* pszList)
{
    const QAbstractItemView* pList = Scenes::seen<QAbstractItemView>(pszList);
    return pList != nullptr ? pList->model()->rowCount() : -1;
}

bool isIdle()
{
    const CareRunner* pRunner = Scenes::Main()->findChild<CareRunner*>();
    return pRunner != nullptr && pRunner->Current() == nullptr;
}

void turnTo(const char* pszSection)
{
    Scenes::click("linkhand_NavBar_Care");
    Scenes::Child<QTabWidget>("linkhand_Care_tabs")->setCurrentWidget(PageView::Of(Scenes::Child<QWidget>(pszSection)));
}

// The first row of the list is selected, so that what can be done with it can be seen.
QWidget* withRow(const char* pszList)
{
    QAbstractItemView* pList = Scenes::seen<QAbstractItemView>(pszList);
    if (pList == nullptr || pList->model()->rowCount() == 0 || !isIdle()) {
        return nullptr;
    }
    if (!pList->selectionModel()->hasSelection()) {
        pList->selectionModel()->setCurrentIndex(pList->model()->index(0, 0),
                                                 QItemSelectionModel::SelectCurrent | QItemSelectionModel::Rows);
        return nullptr;
    }
    return Scenes::Main();
}

Scene tab(const char* pszName, const char* pszSection, const char* pszList)
{
    return Scenes::scene(
        pszName, [pszSection] { turnTo(pszSection); }, [pszList] { return withRow(pszList); });
}

// A window that is opened by a button of a page, once a row of the list is selected if there is one, and runs its own
// loop.
Scene dialog(const char* pszName, const std::function<void()>& turn, const char* pszList, const char* pszButton,
             const char* pszDialog, const char* pszClose)
{
    return Scenes::scene(
        pszName,
        [turn, pszList, pszButton] {
            turn();
            Scenes::later([pszList, pszButton] {
                const QAbstractButton* pButton = Scenes::seen<QAbstractButton>(pszButton);
                if (!isIdle() || (pszList != nullptr && withRow(pszList) == nullptr) || pButton == nullptr ||
                    !pButton->isEnabled()) {
                    return false;
                }
                QTimer::singleShot(0, qApp, [pszButton] { Scenes::click(pszButton); });
                return true;
            });
        },
        [pszDialog] { return Scenes::seen(pszDialog); }, [pszClose] { Scenes::click(pszClose); });
}

} // namespace

void Scenes::addCare(QList<Scene>& listScenes)
{
    listScenes << tab("bin", "linkhand_Care_bin", "linkhand_Care_bin_list");
    listScenes << tab("backups", "linkhand_Care_backups", "linkhand_Care_backups_list");
    listScenes << dialog(
        "restore", [] { turnTo("linkhand_Care_backups"); }, "linkhand_Care_backups_list",
        "linkhand_Care_backups_restore", "linkhand_Restore", "linkhand_Restore_cancel");
    listScenes << scene(
        "duplicates", [] { turnTo("linkhand_Care_duplicates"); },
        [] {
            return rowsOf("linkhand_Care_duplicates_sides") > 0 ? withRow("linkhand_Care_duplicates_list") : nullptr;
        });
    listScenes << scene(
        "check", [] { turnTo("linkhand_Care_check"); },
        [] {
            const QTextBrowser* pFound = seen<QTextBrowser>("linkhand_Care_check_found");
            return mainWindowIf(isIdle() && pFound != nullptr && !pFound->toPlainText().isEmpty());
        });
    listScenes << scene(
        "details", [] { turnTo("linkhand_Care_details"); },
        [] { return rowsOf("linkhand_Care_details_list") > 0 ? withRow("linkhand_Care_details_contacts") : nullptr; });
    listScenes << dialog(
        "detail", [] { turnTo("linkhand_Care_details"); }, "linkhand_Care_details_contacts",
        "linkhand_Care_details_add", "linkhand_Kept", "linkhand_Kept_cancel");
    listScenes << scene(
        "import",
        [] {
            turnTo("linkhand_Care_import");
            Main()->findChild<ImportSection*>()->SetFile(QDir::home().filePath("friends.vcf"));
        },
        [] { return rowsOf("linkhand_Care_import_list") == 2 ? withRow("linkhand_Care_import_list") : nullptr; });
    listScenes << dialog(
        "findings",
        [] {
            turnTo("linkhand_Care_import");
            Main()->findChild<ImportSection*>()->SetFile(QDir::home().filePath("people.csv"));
        },
        nullptr, "linkhand_Care_import_left", "linkhand_Findings", "linkhand_Findings_close");
    listScenes << scene(
        "sync", [] { turnTo("linkhand_Care_sync"); },
        [] {
            QLineEdit* pUrl = seen<QLineEdit>("linkhand_Care_sync_url");
            if (pUrl == nullptr || !isIdle()) {
                return mainWindowIf(false);
            }
            pUrl->setText("https://dav.example.org/anna/contacts/");
            seen<QLineEdit>("linkhand_Care_sync_user")->setText("anna");
            return mainWindowIf(true);
        });
}

void Scenes::addPreferences(QList<Scene>& listScenes)
{
    listScenes << scene(
        "preferences", [] { click("linkhand_NavBar_Preferences"); },
        [] { return mainWindowIf(seen("linkhand_Page_Preferences") != nullptr); });
    const std::function<void()> turn = [] { click("linkhand_NavBar_Preferences"); };
    listScenes << dialog("help", turn, nullptr, "linkhand_Preferences_help", "linkhand_Help", "linkhand_Help_close");
    listScenes << dialog("about", turn, nullptr, "linkhand_Preferences_about", "linkhand_About",
                         "linkhand_About_close");
}
