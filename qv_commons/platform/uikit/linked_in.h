// What a linker would leave out of a static library, as no symbol refers to it: the object that
// installs the adapter, and the search bar's category. The file of each public class includes this,
// so that with any of them both are there, with the linker's flag -ObjC or without.
#pragma once

namespace qv_commons::uikit {

void installAdapter();
void searchBarCategory();

[[gnu::used]] static void (*const linkedIn[])() = {installAdapter, searchBarCategory};

}  // namespace qv_commons::uikit
