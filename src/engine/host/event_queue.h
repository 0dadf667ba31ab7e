// Long work runs on the thread of the windows and keeps them alive by serving
// their waiting events at fixed points.
#pragma once

#include <functional>

namespace tallix {

class EventQueue {
public:
    virtual ~EventQueue() = default;

    /// Lets waiting events run and returns. Cheap enough to be called at every record.
    virtual void Serve() = 0;

    /// Does work that has no points of its own to serve at, such as one statement of a
    /// slow server, and returns when it is done. Events may be served meanwhile, with
    /// the work on another thread: what it uses is to be left alone by their handlers.
    /// What the work throws is thrown here.
    virtual void ServeDuring(const std::function<void()>& work) { work(); }
};

/// For runs without windows.
class NoEvents : public EventQueue {
public:
    void Serve() override {}
};

}  // namespace tallix
