// Carries the precompiled header QtHeader.h and nothing else.
