#ifndef LINKHAND_HOST_PHONEBOOKPARTS_H
#define LINKHAND_HOST_PHONEBOOKPARTS_H

class QAbstractButton;
class QLineEdit;
class QSplitter;
class QTableWidget;
class QTreeWidget;
class QWidget;

// The parts of the phonebook's window on its page, by the names that it gives them. Null for what is not there; the
// table is another one after each switch of node. User-interface thread only.
namespace PhonebookParts
{

QWidget* Window(const QWidget& page);
QTreeWidget* Tree(const QWidget& page);
QTableWidget* Table(const QWidget& page);
QLineEdit* Search(const QWidget& page);
QAbstractButton* SearchButton(const QWidget& page);
QSplitter* MainSplitter(const QWidget& page);    // tree against the rest
QSplitter* PreviewSplitter(const QWidget& page); // table against preview

// Whether the table holds all that its first read has brought: only then it sorts.
bool IsRead(const QWidget& page);

} // namespace PhonebookParts

#endif // LINKHAND_HOST_PHONEBOOKPARTS_H
