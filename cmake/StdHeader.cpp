// Carries the precompiled header of the libraries without Qt.
