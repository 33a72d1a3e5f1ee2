// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace gallery {

class Page;

/// Makes the page of one of pageNames().
Page* makePage(const QString& name);

/// What the navigation calls it; to be translated by text().
const char* titleOfPage(const QString& name);

Page* makeNumbersPage();
Page* makeServicesPage();
Page* makeItemsPage();
Page* makeDialogsPage();
Page* makeStepsPage();

} // namespace gallery
