#pragma once

#include <string>
#include <string_view>

/// The publisher's pages. Their addresses stand in the bundle's information dictionary, in one dictionary, WebPages.
namespace orlamo::WebPages {

inline constexpr std::string_view home = "home";
inline constexpr std::string_view videoTutorial = "videoTutorial";
inline constexpr std::string_view questionsAndAnswers = "questionsAndAnswers";
inline constexpr std::string_view support = "support";
inline constexpr std::string_view chatGroup = "chatGroup";
inline constexpr std::string_view permissionHelp = "permissionHelp";
inline constexpr std::string_view applications = "applications";
inline constexpr std::string_view developer = "developer";

/// The page's address; empty, with a line in the log, when the information dictionary lacks it.
std::string address(std::string_view page);

/// Opens an address in the default browser. False when it is not one or nothing opens it.
bool open(std::string_view address);

}  // namespace orlamo::WebPages
