#ifndef TESTS_ENDURANCE_SCREENCHECK_H
#define TESTS_ENDURANCE_SCREENCHECK_H

#include <QString>

class QTreeWidget;
class QTreeWidgetItem;
class Services;

// Whether the screen and the store say the same. Only for a program at rest: no menu, no dialog, no worker.
class ScreenCheck
{
public:
    explicit ScreenCheck(Services& services) : m_services(services) {}

    // Clicks every node of the tree and compares its count and the table's rows with the store. Empty if all agree,
    // else what does not.
    QString run() const;

    // True once no worker runs and no table is being filled.
    bool isAtRest() const;

private:
    // A user's click, up to the table's complete read.
    bool click(QTreeWidget* tree, QTreeWidgetItem* item) const;
    QString checkNode(int node, int child) const;

    Services& m_services;
};

#endif // TESTS_ENDURANCE_SCREENCHECK_H
