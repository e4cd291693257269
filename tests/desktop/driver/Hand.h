#ifndef LINKHAND_TESTS_HAND_H
#define LINKHAND_TESTS_HAND_H

#include <QPoint>
#include <QString>

// The steps of a drag, one by one, with the real mouse. What it holds down it lets go at its end.
class Hand
{
public:
    ~Hand();

    void Press(const QPoint& point);

    // In small steps, since a drag begins after some way and its targets want to see the pointer move.
    void MoveTo(const QPoint& point);
    void Release();

    // A key pressed with the button down; a key that clears other keys first would let the button go.
    void Tap(const QString& strKey);
    void Hold(const QString& strKey);
    void LetGo();

private:
    QPoint m_at;
    bool m_bDown = false;
    QString m_strHeld;
};

#endif // LINKHAND_TESTS_HAND_H
