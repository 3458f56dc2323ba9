// Nothing but the precompiled headers of the tests in this folder.
