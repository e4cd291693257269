#ifndef LINKHAND_CORE_EXTENDDIALOG_H
#define LINKHAND_CORE_EXTENDDIALOG_H

#include <QDialog>
#include <QFlags>
#include <QString>
#include <QWidget>

#include "linkhand/core/CoreExport.h"

class ExtendDialogPrivate;

// The look of a dialog's frame; plug-ins pass 1.
enum enWidgetType { WIDGET_TYPE_PLAIN = 0, WIDGET_TYPE_DIALOG = 1 };

// The frame of all dialogs of the plug-ins: a plug-in builds its content as a widget and puts it in.
// User-interface thread only.
class LINKHAND_CORE_API ExtendDialog : public QDialog
{
    Q_OBJECT

public:
    ExtendDialog(QWidget* pParent, QFlags<Qt::WindowType> flags, enWidgetType enType);
    ~ExtendDialog() override;

    // Puts the content in; it becomes a child of the dialog. A second call replaces the first content, which
    // then belongs to the caller again.
    void AddMainWidget(QWidget* pWidget);

    // The title and the window flags of the frame. Setting the flags hides the dialog, as Qt does.
    void setWindowTitle(const QString& strTitle);
    void setWindowFlags(QFlags<Qt::WindowType> flags);

private:
    Q_DISABLE_COPY(ExtendDialog)
    ExtendDialogPrivate* d;
};

#endif // LINKHAND_CORE_EXTENDDIALOG_H
