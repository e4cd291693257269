#ifndef LINKHAND_HOST_FILEDROP_H
#define LINKHAND_HOST_FILEDROP_H

#include <QObject>
#include <QStringList>

class QWidget;

// Lets files of contacts be dropped anywhere on a window.
class FileDrop : public QObject
{
    Q_OBJECT

public:
    // The window outlives the object.
    explicit FileDrop(QWidget* pWindow);

    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

signals:
    // Their URLs. They are a copy's: whoever gave them keeps his files.
    void dropped(const QStringList& lstUrls);
};

#endif // LINKHAND_HOST_FILEDROP_H
