// SPDX-License-Identifier: Apache-2.0
// Read before every file of the room drawing: clang 14 stumbles over libqpdf's JSON class in C++20, which no file here
// uses and which is only named in declarations.
#define JSON_HH
class JSON;
