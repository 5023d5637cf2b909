#pragma once

namespace brindle {

/// The window that asks for a name and a password. Kept as is: it has nothing in it, and nothing opens it.
class AuthenticationWindowController {};

} // namespace brindle
