#ifndef ADDRBOOKUIPLUGIN_TEXTS_H
#define ADDRBOOKUIPLUGIN_TEXTS_H

#include <QMessageBox>
#include <QString>
#include <QWidget>

#include "linkhand/core/Change.h"
#include "linkhand/core/CommonUtils.h"

// The name of this plug-in, its context in the language files and its folder.
inline QString addrBookPluginName()
{
    return QLatin1String("AddrBookUIPlugin");
}

// The text of an id in the current language.
inline QString addrBookTr(const QString& strId)
{
    return Change::tr(strId, addrBookPluginName());
}

// A message box with one OK. The caption is an id, the text is translated already.
inline int showMessageOk(QMessageBox::Icon enIcon, QWidget* pParent, const QString& strCaption, const QString& strText)
{
    return CommonUtils::ShowMessage(enIcon, pParent, addrBookTr(strCaption), strText, QLatin1String("IDS_OK"),
                                    QLatin1String(""), QLatin1String(""), true, Qt::WindowCloseButtonHint, nullptr,
                                    QLatin1String(""), true);
}

#endif // ADDRBOOKUIPLUGIN_TEXTS_H
