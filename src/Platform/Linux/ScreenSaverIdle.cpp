// MIT-SCREEN-SAVER query. xcb caches whether the extension is present per connection, so after the
// first call this is one round trip.
#include "Platform/Linux/ScreenSaverIdle.h"

#include <xcb/screensaver.h>

#include <cstdlib>
#include <memory>

#include "Platform/Linux/XcbConnection.h"

namespace larkspan {

std::optional<double> screenSaverIdleSeconds(XcbConnection& connection) {
    auto* c = connection.raw();
    const auto* extension = xcb_get_extension_data(c, &xcb_screensaver_id);
    if (!extension || !extension->present)
        return std::nullopt;
    std::unique_ptr<xcb_screensaver_query_info_reply_t, decltype(&std::free)> reply(
        xcb_screensaver_query_info_reply(c, xcb_screensaver_query_info(c, connection.root()), nullptr),
        &std::free);
    if (!reply)
        return std::nullopt;
    return reply->ms_since_user_input / 1000.0;
}

}  // namespace larkspan
