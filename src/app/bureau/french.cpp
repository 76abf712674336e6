#include "app/bureau/french.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace sonarelle {

void speak_french(QTranslator& translator) {
    if (translator.load("qtbase_fr", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&translator);
}

} // namespace sonarelle
