#pragma once

// Starting Vantrel when the user logs in, as the General tab sees it; the application supplies
// the real entry.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    virtual bool isEnabled() const = 0;
    // A change that cannot be written leaves the state as it was.
    virtual void setEnabled(bool enabled) = 0;
};
