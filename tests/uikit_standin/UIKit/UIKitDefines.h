// What all headers of the stand-in need.
#pragma once

#import <Foundation/Foundation.h>

#ifndef IBOutlet
#define IBOutlet
#define IBAction void
#endif

typedef NSPoint CGPoint;
typedef NSSize CGSize;
typedef NSRect CGRect;
