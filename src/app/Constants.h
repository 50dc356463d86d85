#pragma once

#include <QString>

// Texts built from the product configuration and the running system.
namespace Constants {

// Two empty lines for the user's message, then "Vantrel: " + version and build, then
// "Linux: " + the system's own name for itself; joined with single line feeds.
QString supportEmailBody();
// The support address as a "mailto:" link with the subject "Customer Query - Vantrel" and the
// body above, both percent-encoded (spaces as %20, line feeds as %0A). The bare address when it
// does not parse as a link.
QString supportEmailLink();
// The same for a given "mailto:" address, for tests of odd addresses.
QString supportEmailLink(const QString &mailtoAddress);

} // namespace Constants
