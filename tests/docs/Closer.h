#ifndef TESTS_DOCS_CLOSER_H
#define TESTS_DOCS_CLOSER_H

#include <QObject>

// Closes the sample host's window once the phonebook's table is on it, and says so.
class Closer : public QObject
{
    Q_OBJECT

public:
    explicit Closer(QObject* pParent);

protected:
    void timerEvent(QTimerEvent* pEvent) override;
};

#endif // TESTS_DOCS_CLOSER_H
