// Long work runs on the thread of the windows and keeps them alive by serving
// their waiting events at fixed points.
#pragma once

namespace tallix {

class EventQueue {
public:
    virtual ~EventQueue() = default;

    /// Lets waiting events run and returns. Cheap enough to be called at every record.
    virtual void Serve() = 0;
};

/// For runs without windows.
class NoEvents : public EventQueue {
public:
    void Serve() override {}
};

}  // namespace tallix
