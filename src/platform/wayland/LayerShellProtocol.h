#pragma once

// The layer shell's generated client code for C++: the protocol names a parameter `namespace`,
// a keyword in C++.
#define namespace layerNamespace
#include "wlr-layer-shell-unstable-v1-client-protocol.h"
#undef namespace
