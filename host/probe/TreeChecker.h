#pragma once

#include <optional>
#include <string>

// Looks whether the whole element tree and the manager's indexes agree with each other. Gives what is wrong first.
std::optional<std::string> FindTreeFault();
