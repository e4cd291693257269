#ifndef LINKHAND_HOST_LATEBOX_H
#define LINKHAND_HOST_LATEBOX_H

#include <QComboBox>

// A box that does not ask for its width before it is seen. The names of languages and countries are each in their own
// letters, and measuring them reads the fonts of half the world.
class LateBox : public QComboBox
{
public:
    explicit LateBox(QWidget* pParent) : QComboBox(pParent), m_bSeen(false)
    {
        setSizeAdjustPolicy(QComboBox::AdjustToContents);
    }

    QSize sizeHint() const override { return m_bSeen ? QComboBox::sizeHint() : QSize(0, 0); }
    QSize minimumSizeHint() const override { return m_bSeen ? QComboBox::minimumSizeHint() : QSize(0, 0); }

protected:
    void showEvent(QShowEvent* pEvent) override
    {
        QComboBox::showEvent(pEvent);
        if (!m_bSeen) {
            m_bSeen = true;
            updateGeometry();
        }
    }

private:
    bool m_bSeen;
};

#endif // LINKHAND_HOST_LATEBOX_H
