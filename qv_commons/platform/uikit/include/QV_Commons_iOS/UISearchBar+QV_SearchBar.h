#pragma once

#import <QV_Commons_iOS/QV_Defines.h>
#import <UIKit/UIKit.h>

NS_ASSUME_NONNULL_BEGIN

@interface UISearchBar (QV_SearchBar)

/// The search bar's text field, on every version of iOS; nil where a system before 13.0 has none.
/// Main thread only.
@property(nonatomic, readonly, nullable) UITextField* qv_searchTextField_all_iOS_versions;

@end

NS_ASSUME_NONNULL_END
