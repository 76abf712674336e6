#include "configuration/window_place.h"

#include "configuration/settings_store.h"
#include "platform/failure.h"
#include "platform/numbers.h"

namespace sonarelle {

namespace {

constexpr int least = 100 * 15; // twips

// 0 for what is no length.
Twips stored_length(const Platform& platform, std::string_view key) {
    Twips length{};
    ErrorIndicator{}.skip([&] {
        const std::string text = SettingsStore{platform}.read(setting_section::position, key);
        length = Twips{to_long(text, platform.decimal_mark)};
    });
    return length;
}

} // namespace

bool restore_size(const Platform& platform, Window& window, const PlaceKeys& keys) {
    const Twips width = stored_length(platform, keys.width);
    const Twips height = stored_length(platform, keys.height);
    if (width.count() < least || height.count() < least)
        return false;
    window.width = width;
    window.height = height;
    return true;
}

void store_place(const Platform& platform, const Window& window, const PlaceKeys& keys) {
    const SettingsStore store{platform};
    const auto write = [&](std::string_view key, Twips place) {
        ErrorIndicator{}.skip(
            [&] { store.write(setting_section::position, key, text_of(place.count(), platform.decimal_mark)); });
    };
    write(keys.top, window.top);
    write(keys.left, window.left);
    if (keys.width.empty() || window.width.get().count() <= 0)
        return;
    write(keys.width, window.width);
    write(keys.height, window.height);
}

} // namespace sonarelle
