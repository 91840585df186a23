// SPDX-License-Identifier: Apache-2.0
// A program that the hardening would change everywhere: a buffer on the stack, filled by a function that has a checked
// form. It is linked without any of it, and never run.
#include <cstdio>

int main(int argumentCount, char *arguments[])
{
    char text[16];
    std::snprintf(text, sizeof text, "%d %s", argumentCount, arguments[0]);
    return std::puts(text) < 0 ? 1 : 0;
}
