#include "ui/help_files.h"

#include <QFile>

#include "core/text.h"
#include "help/help_error.h"
#include "ui/text.h"

/// The files lie in a static library, where nobody asks for them by themselves. The macro works
/// outside of all namespaces alone.
static void LoadHelpFiles() {
    Q_INIT_RESOURCE(help);
}

namespace numerello {

std::string ReadHelpFile(const std::string& name) {
    LoadHelpFiles();
    QFile file(QStringLiteral(":/help/") + ToQString(name));
    if (!file.open(QIODevice::ReadOnly)) {
        throw HelpError(Text("the help has no file ", name));
    }
    return file.readAll().toStdString();
}

}  // namespace numerello
