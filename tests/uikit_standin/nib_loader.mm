// Loads .xib files as the platform loads what is compiled of them, as far as the tests look: views,
// their plain attributes, outlets and actions. Layout, fonts and colours are read over.
#import "tests/uikit_standin/standin.h"

namespace {

[[noreturn]] void fail(NSString* path, NSString* why) {
  [NSException raise:NSInternalInconsistencyException
              format:@"%@: %@", path.lastPathComponent, why];
  __builtin_unreachable();
}

NSDictionary<NSString*, Class>* viewClasses() {
  static NSDictionary* classes = @{
    @"view" : [UIView class],
    @"scrollView" : [UIScrollView class],
    @"stackView" : [UIStackView class],
    @"imageView" : [UIImageView class],
    @"label" : [UILabel class],
    @"button" : [UIButton class],
    @"datePicker" : [UIDatePicker class],
    @"textView" : [UITextView class],
  };
  return classes;
}

NSDictionary<NSString*, NSNumber*>* controlEvents() {
  static NSDictionary* events = @{
    @"touchUpInside" : @(UIControlEventTouchUpInside),
    @"valueChanged" : @(UIControlEventValueChanged),
  };
  return events;
}

}  // namespace

@interface StandinConnection : NSObject
@property(nonatomic, strong) id source;
@property(nonatomic, copy) NSDictionary<NSString*, NSString*>* attributes;
@end

@implementation StandinConnection
@synthesize source = _source;
@synthesize attributes = _attributes;
@end

@interface StandinNib : NSObject <NSXMLParserDelegate>
- (instancetype)initWithPath:(NSString*)path owner:(id)owner;
- (void)load;
- (void)translate:(NSDictionary<NSString*, NSString*>*)table;
@end

@implementation StandinNib {
  NSString* _path;
  id _owner;
  NSMutableDictionary<NSString*, id>* _objects;  // by id
  NSMutableArray* _open;  // the object of each open element, null where it makes none
  NSMutableArray<NSString*>* _openNames;
  NSMutableArray<StandinConnection*>* _connections;
  NSMutableString* _characters;
}

- (instancetype)initWithPath:(NSString*)path owner:(id)owner {
  if ((self = [super init])) {
    _path = path;
    _owner = owner;
    _objects = [NSMutableDictionary dictionary];
    _open = [NSMutableArray array];
    _openNames = [NSMutableArray array];
    _connections = [NSMutableArray array];
  }
  return self;
}

- (void)load {
  NSXMLParser* parser = [[NSXMLParser alloc] initWithData:[NSData dataWithContentsOfFile:_path]];
  parser.delegate = self;
  if (![parser parse]) fail(_path, @"not well-formed XML");
  for (StandinConnection* each in _connections) [self connect:each];
}

- (id)enclosing {
  for (id object in _open.reverseObjectEnumerator) {
    if (object != [NSNull null]) return object;
  }
  return nil;
}

// The object that the element stands for, or nil.
- (id)objectFor:(NSString*)element attributes:(NSDictionary<NSString*, NSString*>*)attributes {
  if ([element isEqual:@"placeholder"]) {
    if (![attributes[@"placeholderIdentifier"] isEqual:@"IBFilesOwner"]) return nil;
    NSString* ownerClass = attributes[@"customClass"];
    if (![_owner isKindOfClass:NSClassFromString(ownerClass)]) {
      fail(_path, [NSString stringWithFormat:@"the owner is no %@", ownerClass]);
    }
    return _owner;
  }
  NSString* container = _openNames.lastObject;
  if (![container isEqual:@"objects"] && ![container isEqual:@"subviews"]) return nil;
  Class type = viewClasses()[element];
  if (NSString* custom = attributes[@"customClass"]) type = NSClassFromString(custom);
  if (type == Nil) fail(_path, [NSString stringWithFormat:@"unknown element %@", element]);
  return [type new];
}

- (void)setAttributes:(NSDictionary<NSString*, NSString*>*)attributes of:(UIView*)view {
  if (NSString* text = attributes[@"text"]) [view setValue:text forKey:@"text"];
  // Systems before 13.4 know no styles, and read over it.
  if ([attributes[@"style"] isEqual:@"wheels"] && standin::systemIsAtLeast("13.4")) {
    static_cast<UIDatePicker*>(view).preferredDatePickerStyle = UIDatePickerStyleWheels;
  }
  for (NSString* flag in @[ @"editable", @"selectable", @"enabled", @"clipsSubviews" ]) {
    NSString* value = attributes[flag];
    if (value == nil) continue;
    NSString* key = [flag isEqual:@"clipsSubviews"] ? @"clipsToBounds" : flag;
    if ([view respondsToSelector:NSSelectorFromString(key)] ||
        [view respondsToSelector:NSSelectorFromString(
                                     [@"is" stringByAppendingString:key.capitalizedString])]) {
      [view setValue:@([value isEqual:@"YES"]) forKey:key];
    }
  }
}

- (void)parser:(NSXMLParser*)parser
    didStartElement:(NSString*)element
       namespaceURI:(NSString*)namespaceURI
      qualifiedName:(NSString*)qualifiedName
         attributes:(NSDictionary<NSString*, NSString*>*)attributes {
  id object = [self objectFor:element attributes:attributes];
  id enclosing = [self enclosing];
  if (object != nil) {
    if (attributes[@"id"]) _objects[attributes[@"id"]] = object;
    if (object != _owner) {
      [self setAttributes:attributes of:object];
      if ([enclosing isKindOfClass:[UIView class]]) [enclosing addSubview:object];
    }
  } else if ([element isEqual:@"outlet"] || [element isEqual:@"action"]) {
    StandinConnection* connection = [StandinConnection new];
    connection.source = enclosing;
    connection.attributes = attributes;
    [_connections addObject:connection];
  } else if ([element isEqual:@"state"] && attributes[@"title"]) {
    [enclosing setTitle:attributes[@"title"] forState:UIControlStateNormal];
  } else if ([element isEqual:@"fragment"]) {
    NSString* text = attributes[@"content"] ?: @"";
    [enclosing setValue:[[enclosing valueForKey:@"text"] ?: @"" stringByAppendingString:text]
                 forKey:@"text"];
  } else if ([element isEqual:@"accessibility"] && attributes[@"identifier"]) {
    [enclosing setAccessibilityIdentifier:attributes[@"identifier"]];
    if (attributes[@"label"]) [enclosing setAccessibilityLabel:attributes[@"label"]];
  }
  _characters = [attributes[@"key"] isEqual:@"text"] ? [NSMutableString string] : nil;
  [_open addObject:object ?: [NSNull null]];
  [_openNames addObject:element];
}

- (void)parser:(NSXMLParser*)parser foundCharacters:(NSString*)characters {
  [_characters appendString:characters];
}

- (void)parser:(NSXMLParser*)parser
    didEndElement:(NSString*)element
     namespaceURI:(NSString*)namespaceURI
    qualifiedName:(NSString*)qualifiedName {
  if ([element isEqual:@"string"] && _characters != nil) {
    [[self enclosing] setValue:_characters forKey:@"text"];
  }
  _characters = nil;
  [_open removeLastObject];
  [_openNames removeLastObject];
}

- (void)translate:(NSDictionary<NSString*, NSString*>*)table {
  for (NSString* key in table) {
    const NSRange dot = [key rangeOfString:@"." options:NSBackwardsSearch];
    if (dot.location == NSNotFound) continue;
    id object = _objects[[key substringToIndex:dot.location]];
    NSString* property = [key substringFromIndex:NSMaxRange(dot)];
    if ([property isEqual:@"normalTitle"]) {
      [object setTitle:table[key] forState:UIControlStateNormal];
    } else {
      [object setValue:table[key] forKey:property];
    }
  }
}

- (void)connect:(StandinConnection*)connection {
  NSDictionary<NSString*, NSString*>* attributes = connection.attributes;
  id destination = _objects[attributes[@"destination"]];
  if (destination == nil) {
    fail(_path, [NSString stringWithFormat:@"no object %@", attributes[@"destination"]]);
  }
  if (NSString* property = attributes[@"property"]) {
    [connection.source setValue:destination forKey:property];
    standin::setName(destination, property);
    return;
  }
  const SEL action = NSSelectorFromString(attributes[@"selector"]);
  NSNumber* event = controlEvents()[attributes[@"eventType"]];
  if (![destination respondsToSelector:action] || event == nil) {
    fail(_path, [NSString stringWithFormat:@"no action %@ for %@", attributes[@"selector"],
                                           attributes[@"eventType"]]);
  }
  [connection.source addTarget:destination
                        action:action
              forControlEvents:static_cast<UIControlEvents>(event.unsignedIntegerValue)];
}

@end

void standin::loadNib(NSString* path, UIViewController* owner,
                      NSDictionary<NSString*, NSString*>* table) {
  const RecordPause pause;
  StandinNib* nib = [[StandinNib alloc] initWithPath:path owner:owner];
  [nib load];
  [nib translate:table];
}

NSDictionary<NSString*, NSString*>* standin::stringTable(NSBundle* bundle, NSString* name) {
  for (NSString* language in NSLocale.preferredLanguages) {
    NSArray<NSString*>* subtags = [language componentsSeparatedByString:@"-"];
    for (NSUInteger count = subtags.count; count > 0; --count) {
      NSString* tried =
          [[subtags subarrayWithRange:NSMakeRange(0, count)] componentsJoinedByString:@"-"];
      NSString* folder = [tried stringByAppendingPathExtension:@"lproj"];
      NSString* path = [bundle pathForResource:name ofType:@"strings" inDirectory:folder];
      if (path != nil) return [NSDictionary dictionaryWithContentsOfFile:path];
    }
    if ([subtags.firstObject isEqual:@"en"]) return nil;
  }
  return nil;
}
