#include "refhost/engine/PluginFolder.h"
#include "refhost/workbench/files/FileActions.h"
#include "refhost/workbench/look/Appearance.h"
#include "refhost/workbench/look/Language.h"
#include "refhost/workbench/window/MainWindow.h"
#include "refhost/workbench/window/Workbench.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("opworkbench"));
    QCoreApplication::setApplicationVersion(QStringLiteral(OPWORKBENCH_VERSION));
    applyAppearance(QStringLiteral("light"));
    installLanguage(systemLanguage());
    Workbench bench(pluginFiles(pluginFolders(QCoreApplication::applicationDirPath())));
    MainWindow window(bench);
    if (argc > 1)
        window.files().open(QApplication::arguments().constLast());
    window.show();
    return QApplication::exec();
}
