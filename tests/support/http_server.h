// A real web server on loopback for tests, which is a proxy as well.
#pragma once

#include <string>
#include <string_view>

#include "support/python_server.h"
#include "support/temp_folder.h"

namespace tallix::test {

class HttpServer {
public:
    HttpServer() : server_("http_server.py", {folder_.Path().string()}) {}

    int Port() const { return server_.Port(); }

    /// The address of a file on this server. "moved/NAME" redirects to NAME and "stalled"
    /// is never answered; what was not published is not found (404, with a body).
    std::string Address(const std::string& name) const {
        return "HTTP://127.0.0.1:" + std::to_string(Port()) + "/" + name;
    }

    void Publish(const std::string& name, std::string_view bytes) const { folder_.Write(name, bytes); }

    /// The request lines so far, each with a line feed after it.
    std::string Requests() const { return ReadBytes(folder_.Path() / "requests"); }

private:
    TempFolder folder_;
    PythonServer server_;
};

}  // namespace tallix::test
