#include "Effects.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabBar>

#include "Store.h"
#include "orva/orva_sdk.h"

namespace
{
class Digest
{
public:
    template <class T>
    void add(const T& value)
    {
        m_value = m_value * 31 + size_t(qHash(value));
    }
    size_t value() const { return m_value; }

private:
    size_t m_value = 7;
};

void addContent(Digest& digest, const QWidget* widget)
{
    if (const QLineEdit* line = qobject_cast<const QLineEdit*>(widget)) {
        digest.add(line->text());
        digest.add(line->cursorPosition());
    } else if (const QAbstractButton* button = qobject_cast<const QAbstractButton*>(widget)) {
        digest.add(button->text());
        digest.add(int(button->isChecked()));
    } else if (const QComboBox* choice = qobject_cast<const QComboBox*>(widget)) {
        digest.add(choice->currentIndex());
    } else if (const QTabBar* tabs = qobject_cast<const QTabBar*>(widget)) {
        digest.add(tabs->currentIndex());
    } else if (const QLabel* label = qobject_cast<const QLabel*>(widget)) {
        digest.add(label->text());
    } else if (const QPlainTextEdit* text = qobject_cast<const QPlainTextEdit*>(widget)) {
        digest.add(text->toPlainText());
    } else if (const QAbstractItemView* view = qobject_cast<const QAbstractItemView*>(widget)) {
        const QItemSelectionModel* selection = view->selectionModel();
        digest.add(view->currentIndex().row());
        digest.add(view->currentIndex().parent().row());
        digest.add(selection != nullptr ? int(selection->selectedIndexes().size()) : -1);
        digest.add(view->model() != nullptr ? view->model()->rowCount() : -1);
    }
}

void addHardware(Digest& digest)
{
    int values[5] = {};
    unsigned char tries[3] = {};
    ORVA_DevSrv_GetDevStatus(&values[0]);
    ORVA_DevSrv_GetPinStatus(0, &values[1], &tries[0], &tries[1], &tries[2]);
    ORVA_DevSrv_GetRFSwitch(&values[2]);
    ORVA_NetSrv_GetSrvStatus(&values[4]);
    short count = 16;
    unsigned short memories[16] = {};
    ORVA_PBSrv_PBGetMemoryListType(&count, memories);
    digest.add(int(count));
    for (int value : values)
        digest.add(value);
}

// What can be seen, and what the stores hold.
size_t state()
{
    Digest digest;
    for (const QWidget* widget : QApplication::allWidgets()) {
        if (!widget->isVisible())
            continue;
        digest.add(widget->objectName());
        digest.add(int(widget->isEnabled()) + (widget->isWindow() ? widget->width() : 0));
        addContent(digest, widget);
    }
    digest.add(quintptr(QApplication::focusWidget()));
    for (int memory : {0, 1, 4})
        digest.add(Store::records(memory));
    addHardware(digest);
    return digest.value();
}
} // namespace

QStringList Effects::kinds()
{
    return {"node",     "row",         "menu",         "key",         "type",        "button",    "drag",
            "hardware", "language",    "window",       "page",        "page button", "page line", "page list",
            "code",     "page choice", "page tab",     "message",     "link",        "cards",     "menu entry",
            "dialog",   "file dialog", "cards dialog", "cards stored"};
}

Effects::Trial::Trial(Effects& effects)
    : m_effects(effects), m_outer(effects.m_trial), m_before(state()), m_opened(false), m_late(false)
{
    if (m_outer != nullptr)
        m_outer->m_opened = true;
    m_effects.m_trial = this;
}

Effects::Trial::~Trial()
{
    m_effects.m_trial = m_outer;
    if (m_kind.isEmpty())
        return;
    Count& count = m_effects.m_counts[m_kind];
    ++count.tried;
    if (!m_late && (m_opened || state() != m_before))
        ++count.did;
}

void Effects::is(const QString& kind, bool late)
{
    m_trial->m_kind = kind;
    m_trial->m_late = late;
}

QString Effects::rarest(const QStringList& kinds) const
{
    QString found = kinds.first();
    for (const QString& kind : kinds) {
        if (m_counts.value(kind).did < m_counts.value(found).did)
            found = kind;
    }
    return found;
}

QString Effects::told() const
{
    QStringList parts;
    for (const QString& kind : kinds())
        parts << QString("%1 %2/%3").arg(kind).arg(m_counts.value(kind).did).arg(m_counts.value(kind).tried);
    return parts.join(", ");
}

void Effects::add(const QString& told)
{
    for (const QString& part : told.split(", ")) {
        const QString figures = part.section(' ', -1);
        Count& count = m_counts[part.section(' ', 0, -2)];
        count.did += figures.section('/', 0, 0).toInt();
        count.tried += figures.section('/', 1).toInt();
    }
}

QStringList Effects::vain() const
{
    QStringList found;
    for (const QString& kind : kinds()) {
        if (m_counts.value(kind).did == 0)
            found << kind;
    }
    return found;
}
