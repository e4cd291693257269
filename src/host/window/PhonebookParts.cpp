#include "window/PhonebookParts.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QSplitter>
#include <QTableWidget>
#include <QTreeWidget>

namespace
{

template <class Widget>
Widget* part(const QWidget& page, const char* pszRole)
{
    return page.findChild<Widget*>(QLatin1String("AddrBookUIPlugin_") + QLatin1String(pszRole));
}

} // namespace

QWidget* PhonebookParts::Window(const QWidget& page)
{
    foreach (QWidget* pWidget, page.findChildren<QWidget*>()) {
        if (pWidget->inherits("AddrBookDlg")) {
            return pWidget;
        }
    }
    return nullptr;
}

QTreeWidget* PhonebookParts::Tree(const QWidget& page)
{
    return part<QTreeWidget>(page, "TreeWidget");
}

QTableWidget* PhonebookParts::Table(const QWidget& page)
{
    return part<QTableWidget>(page, "ContactTable");
}

QLineEdit* PhonebookParts::Search(const QWidget& page)
{
    return part<QLineEdit>(page, "SearchBox");
}

QAbstractButton* PhonebookParts::SearchButton(const QWidget& page)
{
    return part<QAbstractButton>(page, "ToolButton_9006");
}

QSplitter* PhonebookParts::MainSplitter(const QWidget& page)
{
    return part<QSplitter>(page, "splitterMain");
}

QSplitter* PhonebookParts::PreviewSplitter(const QWidget& page)
{
    return part<QSplitter>(page, "splitterPreview");
}

bool PhonebookParts::IsRead(const QWidget& page)
{
    const QTableWidget* const pTable = Table(page);
    return pTable != nullptr && pTable->isSortingEnabled();
}
