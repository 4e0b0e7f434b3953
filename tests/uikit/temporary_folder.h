// A folder of a test's own, removed with it.
#pragma once

#import <Foundation/Foundation.h>
#include <cstdlib>
#include <string>

class TemporaryFolder {
 public:
  explicit TemporaryFolder(NSString* name) {
    std::string pattern =
        [NSTemporaryDirectory() stringByAppendingPathComponent:@"qv_XXXXXX"].UTF8String;
    parent_ = [NSString stringWithUTF8String:mkdtemp(pattern.data())];
    path_ = [parent_ stringByAppendingPathComponent:name];
    [NSFileManager.defaultManager createDirectoryAtPath:path_
                            withIntermediateDirectories:YES
                                             attributes:nil
                                                  error:nullptr];
  }
  ~TemporaryFolder() {
    @autoreleasepool {
      [NSFileManager.defaultManager removeItemAtPath:parent_ error:nullptr];
    }
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  NSString* path() const { return path_; }

  void write(NSString* file, NSString* text) const {
    [[text dataUsingEncoding:NSUTF8StringEncoding]
        writeToFile:[path_ stringByAppendingPathComponent:file]
         atomically:NO];
  }

 private:
  NSString* parent_;
  NSString* path_;
};
