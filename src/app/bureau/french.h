#pragma once

class QTranslator;

namespace sonarelle {

/// Makes Qt's own words in boxes and dialogs French, as all others are. The translator is the caller's.
void speak_french(QTranslator& translator);

} // namespace sonarelle
