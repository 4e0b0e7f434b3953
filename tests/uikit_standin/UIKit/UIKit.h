// A stand-in for the part of UIKit that the iOS adapter uses: the platform's own names, with
// doubles behind them that note what they are told in the record of standin.h.
#pragma once

#import "UIApp.h"
#import "UIColor.h"
#import "UIControl.h"
#import "UIScreen.h"
#import "UITextView.h"
#import "UIView.h"
#import "UIViewController.h"
