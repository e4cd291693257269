#ifndef LINKHAND_HOST_PLUGINPAGE_H
#define LINKHAND_HOST_PLUGINPAGE_H

#include <QWidget>

class PluginContainer;
class QLabel;

// The page of a plug-in's window: shows it when the page is entered, keeps it as large as the page, hides it when the
// page is left.
class PluginPage : public QWidget
{
    Q_OBJECT

public:
    PluginPage(PluginContainer& container, const QString& strPlugin, QWidget* pParent);

    void Enter();
    void Leave();
    void Retranslate();

protected:
    void resizeEvent(QResizeEvent* pEvent) override;

private:
    PluginContainer& m_container;
    QString m_strPlugin;
    QLabel* m_pFailure; // says that the plug-in is not there
};

#endif // LINKHAND_HOST_PLUGINPAGE_H
