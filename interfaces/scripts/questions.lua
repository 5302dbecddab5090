-- A script that runs beside the interface, and waits for the answers of its dialogs.
local name = input("What is your name?", "Guest")
if not name or name == "" then
    Answer = "No name was given."
elseif ask("Shall the desktop greet " .. name .. "?", "yesno") == "Yes" then
    Answer = "Welcome, " .. name .. "."
else
    Answer = name .. " stays unknown."
end
