// Larkspan's own application identifiers for the desktop's tools of a role. A terminal, a mail
// client or a file manager on Linux comes in many makes (GNOME Terminal, Konsole, xterm, …) that
// share no product identity; the workspace reports each of them as the identifier of its role, and
// the rule tables know that identifier, so that every make classifies as what it is. Products that
// are one product everywhere (Firefox, VS Code, Slack, …) keep their own reverse-DNS identifier.
#pragma once

#include <string_view>

namespace larkspan::app_role {

inline constexpr std::string_view terminal = "org.larkspan.role.terminal";
inline constexpr std::string_view mail = "org.larkspan.role.mail";
inline constexpr std::string_view calendar = "org.larkspan.role.calendar";
inline constexpr std::string_view tasks = "org.larkspan.role.tasks";
inline constexpr std::string_view notes = "org.larkspan.role.notes";
inline constexpr std::string_view music = "org.larkspan.role.music";
inline constexpr std::string_view video = "org.larkspan.role.video";
inline constexpr std::string_view settings = "org.larkspan.role.settings";
inline constexpr std::string_view monitor = "org.larkspan.role.monitor";  // system monitor
inline constexpr std::string_view logs = "org.larkspan.role.logs";
inline constexpr std::string_view files = "org.larkspan.role.files";
inline constexpr std::string_view photos = "org.larkspan.role.photos";

}  // namespace larkspan::app_role
