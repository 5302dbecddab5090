#pragma once

// Finds the host's own types, and makes the toolkit's and registers them with the host. Types that were made already
// stay as they are. A type for which there is no memory is left out, and its pointer stays null.
void RegisterScriptTypes();

// Takes the toolkit's types out of the host again and deletes them.
void RemoveScriptTypes();
