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

    // What the plug-in's window needs.
    QSize minimumSizeHint() const override;
    int heightForWidth(int iWidth) const override;

protected:
    void resizeEvent(QResizeEvent* pEvent) override;
    void childEvent(QChildEvent* pEvent) override;
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private:
    const QWidget* content() const;

    PluginContainer& m_container;
    QString m_strPlugin;
    QLabel* m_pFailure; // says that the plug-in is not there
};

#endif // LINKHAND_HOST_PLUGINPAGE_H
