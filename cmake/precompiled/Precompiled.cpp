// SPDX-License-Identifier: MIT
// Nothing: the target exists for its precompiled headers.
