#!/bin/sh
# Usage: exports.sh LIBRARY  The library gives out the documented operations of its public classes, all of them, and
# nothing else of this project. Inline functions of Qt's own classes show up in any library that uses them.
set -eu
exported=$(nm -D --defined-only -C "$1" | cut -d' ' -f3- | sort -u)
fail=0

while read -r operation; do
    if ! printf '%s\n' "$exported" | grep -qF -- "$operation"; then
        echo "missing: $operation"
        fail=1
    fi
done <<'LIST'
Change::tr(QString const&, QString const&)
Change::tr(QString const&, QString const&, QString&, QKeySequence&)
CommonUtils::GetMainWindow()
CommonUtils::GetPluginLibraryPath()
CommonUtils::GetSettings(QString, QString)
CommonUtils::IsPluginAvailable(QString)
CommonUtils::IsShuttingDown()
CommonUtils::MakeCall(QString, _UI_EN_CALL_TYPE)
CommonUtils::MoveCentre(QDialog*)
CommonUtils::ParanthesisCorrectionForHeAndAr(QString&)
CommonUtils::ParseAndCreateHyperLinks(QString)
CommonUtils::ShowMessage(QMessageBox::Icon, QWidget*, QString, QString, QString, QString, QString, bool, QFlags<Qt::WindowType>, QDialog**, QString, bool)
CommonUtils::ThreadCountDec(QString, QString)
CommonUtils::ThreadCountInc(QString, QString)
CommonUtils::WaitForThreadToStop(QThread*, unsigned int)
ExtendDialog::AddMainWidget(QWidget*)
ExtendDialog::ExtendDialog(QWidget*, QFlags<Qt::WindowType>, enWidgetType)
ExtendDialog::setWindowFlags(QFlags<Qt::WindowType>)
ExtendDialog::setWindowTitle(QString const&)
ExtendDialog::staticMetaObject
ExtendDialog::~ExtendDialog()
MENU::QBuildMenu::CreateMenuBar(QString, QWidget*, QList<MENU::QActionInfo>*)
MENU::QBuildMenu::QBuildMenu(QString, QString)
MENU::QBuildMenu::~QBuildMenu()
SearchLineEdit::controlN()
SearchLineEdit::staticMetaObject
Startup::GetPluginContainer()
ToolBarLogic::ChangeToolBarIconDirection(QString, QList<ToolItem>&, bool, QLabel**)
ToolBarLogic::CreateToolBar(QString, QWidget*, QList<ToolItem>&, QButtonGroup**, QHBoxLayout**, SearchLineEdit**, QLabel**)
ToolBarLogic::DestroyToolButtonGroup(QList<ToolItem>&, QButtonGroup**)
ToolBarLogic::EnableDisableItem(QString, QList<ToolItem>&, int, bool)
ToolBarLogic::GetObjectName(QString)
ToolBarLogic::GetXmlData(QString, QList<ToolItem>&, bool&, QString)
ToolBarLogic::ShowHideSearchBox(QWidget*, QHBoxLayout*, SearchLineEdit*, bool)
ToolBarLogic::getPlugin(QString)
typeinfo for ExtendDialog
vtable for ExtendDialog
LIST

public='(Change|CommonUtils|ExtendDialog|MENU::QBuildMenu|SearchLineEdit|Startup|ToolBarLogic)'
others=$(printf '%s\n' "$exported" |
    grep -vE "^$public::|^(vtable|typeinfo|typeinfo name) for $public\$|^non-virtual thunk to $public::" |
    grep -vE '^(_init|_fini|_edata|_end|__bss_start|__asan_[a-z_]*|__odr_asan.*|__tsan_[a-z_]*|__ubsan_[a-z_]*)$' |
    # Functions of Qt and the run time, templates of theirs included.
    grep -vE '(^|[ *&])(Q[A-Z]?[A-Za-z]*|qt?[A-Z]?[A-Za-z_]*|std|operator)(<.*)?(::|\(|<)|^(vtable|typeinfo|typeinfo name|guard variable) for (Q|std)' ||
    true)
if [ -n "$others" ]; then
    printf 'exported besides:\n%s\n' "$others"
    fail=1
fi
exit $fail
