#pragma once

#include <functional>
#include <string>

#include "configuration/settings_store.h"
#include "platform/platform.h"

namespace sonarelle {

/// What is told where values are read at the next start.
[[nodiscard]] std::string restart_needed();

/// The two routines that rewrite the whole store. The values are read at the next start.
class SettingsRewrite {
public:
    /// What ends the program: at once, or as the operator does once he has confirmed it.
    struct Ends {
        std::function<void()> at_once;
        std::function<void()> confirmed;
    };

    SettingsRewrite(const Platform& platform, StationSettings& settings, Ends ends);

    /// Writes the values of a first start and ends the program; in a first start itself without a word.
    void A_purger_registre_Click();
    /// Writes the factory values, but for the banner. The station goes on as it is until it ends.
    void A_revenir_couleur_Click();

private:
    [[nodiscard]] bool wants_to_purge();
    void write(SettingsStore::Value column);
    void tell(const std::string& text);

    const Platform& platform_;
    StationSettings& settings_;
    SettingsStore store_;
    Ends ends_;
};

} // namespace sonarelle
