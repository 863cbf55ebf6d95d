// The stored FTP sites and their menu.
#pragma once

#include "ftp/core/site_list.h"
#include "main_window.h"

namespace ftp {

SiteSections ReadSections();

// Carries the changes out in their order; false at the first that the store refuses, and the rest is left.
bool Apply(const SiteChanges& changes);

// Shows the stored sites in the Upload menu; where none is stored, the menu stays as it is.
void LoadSiteMenu(MainWindow& main);
// The same after a deletion, which may leave none.
void ShowSites(MainWindow& main);

// Marks the site with that address as the one used last, in the store and in the menu, unless it is no longer
// there.
void SaveLastSite(MainWindow& main, const std::string& url);

}  // namespace ftp
