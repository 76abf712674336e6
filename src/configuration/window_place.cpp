#include "configuration/window_place.h"

#include "configuration/settings_store.h"
#include "platform/failure.h"

namespace sonarelle {

void store_place(const Platform& platform, const Window& window, const PlaceKeys& keys) {
    const SettingsStore store{platform};
    const auto write = [&](std::string_view key, Twips place) {
        ErrorIndicator{}.skip(
            [&] { store.write(setting_section::position, key, text_of(place.count(), platform.decimal_mark)); });
    };
    write(keys.top, window.top);
    write(keys.left, window.left);
}

} // namespace sonarelle
