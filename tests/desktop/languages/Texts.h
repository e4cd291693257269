#ifndef LINKHAND_TESTS_TEXTS_H
#define LINKHAND_TESTS_TEXTS_H

#include <QString>
#include <QStringList>

class QWidget;

// The texts that windows show, against those of the language files.
namespace Texts
{

// Whatever a user can read in the widget and below it: captions, headers, entries, hints.
QStringList Shown(QWidget* pRoot);

// Those of them that are a text of the one language and no text of the other.
QStringList Foreign(QWidget* pRoot, const QString& strOld, const QString& strNew);

} // namespace Texts

#endif // LINKHAND_TESTS_TEXTS_H
