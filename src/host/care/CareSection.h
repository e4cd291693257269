#ifndef LINKHAND_HOST_CARE_CARESECTION_H
#define LINKHAND_HOST_CARE_CARESECTION_H

#include <QWidget>

class CareRunner;
class CareTask;
class QAbstractButton;

// One part of the care page. User-interface thread only.
class CareSection : public QWidget
{
    Q_OBJECT

public:
    CareSection(CareRunner& runner, const char* pszName, QWidget* pParent);

    virtual QString Title() const = 0;
    virtual void Retranslate() = 0;

    // Begins to read what it shows.
    virtual void Read() = 0;

    // Gets a task of its own that has ended, cancelled ones only if they say so.
    virtual void Take(const CareTask& task) = 0;

    // Where the keys go when a button that has them can be used no longer.
    virtual QWidget* FocusTarget() = 0;

    // Whether what it shows may be of yesterday.
    void SetStale(bool bStale) { m_bStale = bStale; }
    bool IsStale() const { return m_bStale; }

signals:
    // What became of something the user did.
    void told(const QString& strText);

protected:
    // Takes the task over.
    bool begin(CareTask* pTask);

    // The keys never fall to a widget that nobody meant.
    void enable(QAbstractButton* pButton, bool bEnabled);

private:
    CareRunner& m_runner;
    bool m_bStale;
};

#endif // LINKHAND_HOST_CARE_CARESECTION_H
