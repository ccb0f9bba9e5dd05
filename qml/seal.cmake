# SPDX-License-Identifier: BSD-3-Clause
# Puts the sum of a page behind its compiled form, by which Kiv knows that the two belong together:
# cmake -DPAGE=... -DCOMPILED=... -P seal.cmake
file(SHA1 ${PAGE} sum)
file(APPEND ${COMPILED} ${sum})
