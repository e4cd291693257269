#ifndef LINKHAND_HOST_TESTCOMPANION_H
#define LINKHAND_HOST_TESTCOMPANION_H

#include <QScopedPointer>

#include "app/Companion.h"

class TestSocket;

// Opens the program to tests, as far as its environment says:
//   LINKHAND_TEST_SOCKET      the path of the socket at which WidgetQueries are answered
//   LINKHAND_MESSAGE_ANSWERS  button numbers separated by commas; each message box takes the next, until none is left
//   LINKHAND_TEST_SHOWN       a file, such as a pipe that somebody waits at to time the start; the first painting of
//                             the main window writes one line to it
//   LINKHAND_TEST_ROWS        likewise; the first painting of the sorted contacts writes one line
class TestCompanion : public Companion
{
public:
    TestCompanion();
    ~TestCompanion() override;

    void Begin() override;
    void Painted() override;
    void PhonebookShown(QWidget& page) override;
    QList<int> Answers() override;

private:
    QScopedPointer<TestSocket> m_pSocket;
};

#endif // LINKHAND_HOST_TESTCOMPANION_H
