#ifndef TESTS_ENDURANCE_EFFECTS_H
#define TESTS_ENDURANCE_EFFECTS_H

#include <QMap>
#include <QString>
#include <QStringList>

// What each kind of action has brought about: one that never does anything tests nothing.
class Effects
{
public:
    // All that there are.
    static QStringList kinds();

    // An action, from before it to after it. It has an effect if the user can see or the stores can tell a difference,
    // or if it opens something in whose event loop further actions come.
    class Trial
    {
    public:
        explicit Trial(Effects& effects);
        ~Trial();
        Trial(const Trial&) = delete;
        Trial& operator=(const Trial&) = delete;

    private:
        friend class Effects;
        Effects& m_effects;
        Trial* const m_outer;
        const size_t m_before;
        QString m_kind; // empty for nothing done
        bool m_opened;
        bool m_late;
    };

    // What the innermost action is; late for one whose effect comes after its end, and is told by did().
    void is(const QString& kind, bool late = false);
    void did(const QString& kind) { ++m_counts[kind].did; }

    // That of these with the fewest effects.
    QString rarest(const QStringList& kinds) const;

    // "kind effects/actions" for each, with ", " between; and such texts added up.
    QString told() const;
    void add(const QString& told);

    // Those that had none.
    QStringList vain() const;

private:
    struct Count {
        int tried = 0;
        int did = 0;
    };
    QMap<QString, Count> m_counts;
    Trial* m_trial = nullptr;
};

#endif // TESTS_ENDURANCE_EFFECTS_H
