// SPDX-License-Identifier: BSD-3-Clause
#include "KnFieldOwner.h"

#include "KnField.h"

KnFieldOwner::~KnFieldOwner() = default;

void KnFieldOwner::adopt(KnField& field) { field.m_owner = this; }
