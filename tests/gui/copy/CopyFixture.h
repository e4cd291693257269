#ifndef TESTS_GUI_COPY_COPYFIXTURE_H
#define TESTS_GUI_COPY_COPYFIXTURE_H

#include <QLabel>
#include <QProgressBar>

#include "../window/WindowFixture.h"

// The window, with a usage file of its own and the events that a drag from its table to its tree brings.
class CopyFixture : public WindowFixture
{
public:
    CopyFixture();

    // The user shows a node, selects rows by their names and drags them. The rows as the table hands them over.
    std::unique_ptr<QMimeData> take(QTreeWidgetItem* source, const QStringList& names);

    // The drag comes over a node; true if the node takes it. Then it is let go there.
    bool hover(const QMimeData& rows, QTreeWidgetItem* target) const;
    void release(const QMimeData& rows, QTreeWidgetItem* target, Qt::KeyboardModifiers keys = Qt::NoModifier) const;

    // All of it; false if the target refused.
    bool drop(QTreeWidgetItem* source, const QStringList& names, QTreeWidgetItem* target,
              Qt::KeyboardModifiers keys = Qt::NoModifier);

    // A drop that no hover would let through: the tree's list as it stands, on the node that is current.
    void dropList(const QList<QString>& list) const;

    // Name and number of each record of a memory.
    static QStringList stored(int memory);
    static QList<QStringList> all(int memory);

    // What the waiting dialog says.
    static QString counter();
    static int steps();
};

#endif // TESTS_GUI_COPY_COPYFIXTURE_H
