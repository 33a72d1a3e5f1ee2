// SPDX-License-Identifier: MIT
// Building it is the test: the code in the documentation stands beside this file.
int main()
{
    return 0;
}
