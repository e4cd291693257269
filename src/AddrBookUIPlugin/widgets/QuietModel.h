#ifndef ADDRBOOKUIPLUGIN_QUIETMODEL_H
#define ADDRBOOKUIPLUGIN_QUIETMODEL_H

#include <QAbstractItemView>

// Keeps a view, for as long as this object lives, from being told of single cells: where a whole row has just come or
// is about to go, where every mark changes, or where the view is on no screen, that is all that a large view's time
// goes into. The view keeps its model meanwhile.
class QuietModel
{
public:
    enum AtEnd { LEAVE, REPAINT };

    explicit QuietModel(QAbstractItemView* pView, AtEnd enAtEnd = LEAVE)
        : m_pView(pView), m_enAtEnd(enAtEnd), m_bBefore(pView->model()->blockSignals(true))
    {
    }
    ~QuietModel()
    {
        m_pView->model()->blockSignals(m_bBefore);
        if (m_enAtEnd == REPAINT)
            m_pView->viewport()->update();
    }

private:
    Q_DISABLE_COPY(QuietModel)
    QAbstractItemView* m_pView;
    AtEnd m_enAtEnd;
    bool m_bBefore;
};

#endif // ADDRBOOKUIPLUGIN_QUIETMODEL_H
