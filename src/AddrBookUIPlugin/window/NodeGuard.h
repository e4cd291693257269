#ifndef ADDRBOOKUIPLUGIN_NODEGUARD_H
#define ADDRBOOKUIPLUGIN_NODEGUARD_H

#include <QtGlobal>

class QTreeWidgetItem;

// A pointer to a node of the tree across a nested event loop: null once that node has been removed, also where another
// one has been made at its address since. Whoever removes nodes tells Forget. User-interface thread only.
class NodeGuard
{
public:
    explicit NodeGuard(QTreeWidgetItem* pitem);
    ~NodeGuard();

    QTreeWidgetItem* Node() const { return m_pItem; }
    bool IsGone() const { return m_pItem == nullptr; }

    static void Forget(const QTreeWidgetItem* pitem);

private:
    Q_DISABLE_COPY(NodeGuard)
    QTreeWidgetItem* m_pItem;
    NodeGuard* m_pNext; // guards live on the stack and go in the reverse order
};

#endif // ADDRBOOKUIPLUGIN_NODEGUARD_H
