#pragma once

// Factories for the platform's implementations of the interfaces that the rest of Vantrel uses.
// The backend is chosen at build time; nothing outside src/platform/ includes platform headers.
class Platform final {
public:
    Platform() = delete;
};
