#pragma once

#include <functional>

#include "configuration/settings_store.h"
#include "platform/platform.h"

namespace sonarelle {

/// The two routines that rewrite the whole store. Both end the process: the values are read again at the next start.
class SettingsRewrite {
public:
    SettingsRewrite(const Platform& platform, StationSettings& settings, std::function<void()> end_process);

    /// Writes the values of a first start.
    void A_purger_registre_Click();
    /// Returns to the factory values.
    void A_revenir_couleur_Click();

private:
    void rewrite(SettingsStore::Value column);
    void tell(const std::string& text);

    const Platform& platform_;
    StationSettings& settings_;
    SettingsStore store_;
    std::function<void()> end_process_;
};

} // namespace sonarelle
