#ifndef LINKHAND_TESTS_SCENEWINDOWS_H
#define LINKHAND_TESTS_SCENEWINDOWS_H

class QWidget;

// The window in front of the others; null if there is none.
namespace Scenes
{

// One of this class.
QWidget* modal(const char* pszClass);

QWidget* popup();
void closePopup();

} // namespace Scenes

#endif // LINKHAND_TESTS_SCENEWINDOWS_H
