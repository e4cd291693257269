#ifndef LINKHAND_HOST_HOSTSETTINGS_H
#define LINKHAND_HOST_HOSTSETTINGS_H

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

// What the host remembers between two runs, in the user's INI file. What is set is in the file when the call returns,
// unless it is set together with more. User-interface thread only.
class HostSettings
{
public:
    explicit HostSettings(const QString& strFile) : m_strFile(strFile), m_iTogether(0) {}

    // What is set while one lives comes into the file at its end, by one write: all of it or nothing.
    class Together
    {
    public:
        explicit Together(HostSettings& settings) : m_settings(settings) { ++m_settings.m_iTogether; }
        ~Together();
        Together(const Together&) = delete;
        Together& operator=(const Together&) = delete;

    private:
        HostSettings& m_settings;
    };

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

    // The page to begin with: a page's name, or empty for the last one that was shown.
    QString StartPage() const;
    void SetStartPage(const QString& strPage);
    QString LastPage() const;
    QString FirstPage() const { return StartPage().isEmpty() ? LastPage() : StartPage(); }
    void SetLastPage(const QString& strPage);

    // Widths or heights of the parts of something, under its name; empty if none are kept.
    QList<int> Sizes(const QString& strName) const;
    void SetSizes(const QString& strName, const QList<int>& listSizes);

    // Whether a copy of the contacts is made once a day.
    bool DailyBackup() const;

    // Any value of the file, "section/key", or what the program ships with.
    QString Value(const QString& strKey) const;
    void SetValue(const QString& strKey, const QString& strValue);

    bool DevicePanelShown() const;
    void SetDevicePanelShown(bool bShown);

private:
    QVariant read(const QString& strKey) const;
    void write(const QString& strKey, const QVariant& value);

    QString m_strFile;
    QMap<QString, QVariant> m_held; // not in the file yet
    int m_iTogether;
};

#endif // LINKHAND_HOST_HOSTSETTINGS_H
