#ifndef TESTS_DESKTOP_LANGUAGES_SCENECONTACTS_H
#define TESTS_DESKTOP_LANGUAGES_SCENECONTACTS_H

#include <QString>

namespace SceneContacts
{

// Contacts in several scripts, two groups, a card and a device in the stores of a folder, and a file to import. False
// if anything of it failed.
bool Fill(const QString& strFolder, const QString& strCsvFile);

} // namespace SceneContacts

#endif // TESTS_DESKTOP_LANGUAGES_SCENECONTACTS_H
