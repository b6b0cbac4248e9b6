// Exists so that the precompiled gtkmm headers have a target to belong to.
