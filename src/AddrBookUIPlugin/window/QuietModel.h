#ifndef ADDRBOOKUIPLUGIN_QUIETMODEL_H
#define ADDRBOOKUIPLUGIN_QUIETMODEL_H

#include <QAbstractItemModel>

// Keeps a model, for as long as this object lives, from telling its view of single cells: where the whole row has just
// come or is about to go, or the view is on no screen, that is all that a large table's time goes into.
class QuietModel
{
public:
    explicit QuietModel(QAbstractItemModel* pModel) : m_pModel(pModel), m_bBefore(pModel->blockSignals(true)) {}
    ~QuietModel() { m_pModel->blockSignals(m_bBefore); }

private:
    Q_DISABLE_COPY(QuietModel)
    QAbstractItemModel* m_pModel;
    bool m_bBefore;
};

#endif // ADDRBOOKUIPLUGIN_QUIETMODEL_H
