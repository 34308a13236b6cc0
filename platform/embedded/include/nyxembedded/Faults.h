#pragma once

namespace nyx::embedded {

/// Switches that make the renderer fail where a real one may.
struct Faults {
    int failCreations = 0; ///< so many coming end_color / end_colorway / create_surface calls fail
    bool noUniqueNames = false;     ///< nyx_color_find_unique_name yields null
    bool noScene = false;           ///< nyxRT_api::scene() yields null
    bool holdNotifications = false; ///< nothing is delivered until this is off again
    bool noSettings = false;        ///< color_settings_params() yields null
    int failSaveStep = 0;           ///< step of saving that fails, see failingTarget(); 0: none
    bool noPainter = false;         ///< the painter factory makes none
};

} // namespace nyx::embedded
