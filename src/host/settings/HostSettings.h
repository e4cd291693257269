#ifndef LINKHAND_HOST_HOSTSETTINGS_H
#define LINKHAND_HOST_HOSTSETTINGS_H

#include <QByteArray>
#include <QString>

// What the host remembers between two runs, in the section "host" of the user's INI file. User-interface thread only.
class HostSettings
{
public:
    explicit HostSettings(const QString& strFile) : m_strFile(strFile) {}

    QString File() const { return m_strFile; }

    // Code of the language chosen, empty if none ever was.
    QString Language() const;
    void SetLanguage(const QString& strLanguage);

    // QWidget::saveGeometry of the main window; empty at the first start.
    QByteArray Geometry() const;
    void SetGeometry(const QByteArray& geometry);

    // Whether the user has put away the note that greets at an empty phonebook.
    bool WelcomeDismissed() const;
    void SetWelcomeDismissed(bool bDismissed);

    bool DevicePanelShown() const;
    void SetDevicePanelShown(bool bShown);

private:
    QString m_strFile;
};

#endif // LINKHAND_HOST_HOSTSETTINGS_H
