#import <UIKit/UIKit.h>

void keepUp(UIViewController* screen);

void keepUp(UIViewController* screen) {
  screen.modalInPresentation = YES;
}
