#ifndef LINKHAND_HOST_WORDBOX_H
#define LINKHAND_HOST_WORDBOX_H

#include <QComboBox>

// A combo box that is never narrower than its longest entry, in whatever language: Qt keeps the smallest width of the
// entries that it had first.
class WordBox : public QComboBox
{
public:
    explicit WordBox(QWidget* pParent) : QComboBox(pParent) { setSizeAdjustPolicy(AdjustToContents); }

    QSize minimumSizeHint() const override { return sizeHint(); }
};

#endif // LINKHAND_HOST_WORDBOX_H
