// What tests see and set of the stand-in of the platform. The adapter under test never includes it,
// but for the version test of `qv_commons/platform/uikit/availability.h`.
//
// The doubles note every effect in `record()`, in order, as "receiver selector:argument ...":
//
//     standin::reset();
//     UIViewController* home = standin::makeViewController(@"home");
//     [home presentViewController:[UIAlertController new] animated:YES completion:nil];
//     EXPECT_EQ(standin::record(),
//               Lines({"home presentViewController:UIAlertController animated:1 completion:nil"}));
//
// Main thread only.
#pragma once

#import <MessageUI/MessageUI.h>
#include <string>
#include <vector>

namespace standin {

// Everything as at the start of a test: 2023-11-14 22:13:20 UTC, system 14.4 on an "iPhone" of 375
// by 667 points in the light look, mail set up, empty records, empty user defaults, no receipt,
// presentation not strict.
void reset();

std::vector<std::string>& record();

// Adds a line to the record, except while a RecordPause is there.
void note(NSString* format, ...);

class RecordPause {
 public:
  RecordPause();
  ~RecordPause();
  RecordPause(const RecordPause&) = delete;
  RecordPause& operator=(const RecordPause&) = delete;
};

// What stands for an object in the record: its class's name until another is set; a colour's
// components; "nil".
void setName(id object, NSString* name);
NSString* nameOf(id object);

UIViewController* makeViewController(NSString* name);

// The running system's version.
void setSystemVersion(NSInteger major, NSInteger minor, NSInteger patch = 0);
bool systemIsAtLeast(const char* version);  // "13.0"
bool systemIsAtLeast(NSOperatingSystemVersion version);

void setNow(double secondsSince1970);
void setModel(NSString* localizedModel);
void setScreenSize(CGSize points);
void setUserInterfaceStyle(UIUserInterfaceStyle style);
void setReceiptURL(NSURL* url);  // nil: the bundle names no place

// Animated presentations and dismissals end, and their completions run, when a test says so: the
// oldest, or all, those that come up meanwhile included.
void finishTransition();
void finishTransitions();
std::size_t waitingTransitions();

// Strict: a controller that presents something, or whose presented one is still being dismissed,
// presents nothing more; what it is told to present is lost, and its completion never runs. UIKit
// may do so, and does not always.
void setStrictPresentation(bool strict);
bool presentsStrictly();

// What the user does.
void tap(UIAlertAction* action);                       // on a button of an alert on the screen
bool tapLink(UITextView* textView, NSUInteger index);  // on the character; false: no link there
bool swipeAway(UIViewController* controller);          // false: the screen can't be swiped away

// What the operations of UIApplication were asked to open, oldest first.
NSMutableArray<NSURL*>* openedURLs();

void setCanSendMail(bool can);

// The user leaves the composer.
void finishMail(MFMailComposeViewController* composer, MFMailComposeResult result, NSError* error);

// What a composer was told.
struct Mail {
  NSArray<NSString*>* toRecipients;
  NSString* subject;
  NSString* body;
  BOOL isHTML = YES;
  struct Attachment {
    NSData* data;
    NSString* mimeType;
    NSString* fileName;
  };
  std::vector<Attachment> attachments;
};
const Mail& mailOf(MFMailComposeViewController* composer);

// The value that a search bar has under the private key of systems before 13; nil: it does not know
// the key.
void setSearchField(UISearchBar* searchBar, id value);

// Loads the layout in `path` (a .xib file) for its owner: makes the views, sets the owner's outlets
// by key and connects the actions by selector. Raises NSInternalInconsistencyException, naming what
// is wrong, where the platform would, and for an element it does not know. The words of `table`, by
// keys such as "header.text", take the place of the layout's own.
void loadNib(NSString* path, UIViewController* owner,
             NSDictionary<NSString*, NSString*>* table = nil);

// The string table of that name in the first of the user's languages that the bundle speaks, tried
// with ever fewer of its subtags; nil where that is English, which the bundle's base is in.
NSDictionary<NSString*, NSString*>* stringTable(NSBundle* bundle, NSString* name);

// For the doubles: runs `done` when the transition ends.
void afterTransition(BOOL animated, void (^done)(void));

}  // namespace standin
