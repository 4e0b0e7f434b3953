Pod::Spec.new do |spec|
  spec.name = 'QV_Commons_iOS'
  spec.version = '1.0.0'
  spec.summary = 'Age gate, support e-mail, review page, legal links, app information, time and view helpers.'
  spec.homepage = 'https://www.example.com/qv_commons'
  spec.license = { type: 'MIT', file: 'LICENSE' }
  spec.author = 'QV Commons'
  # A fork names the repository that it is fetched from.
  spec.source = { git: 'https://www.example.com/qv_commons.git', tag: "v#{spec.version}" }
  spec.platform = :ios, '11.0'
  spec.requires_arc = 'qv_commons/platform/uikit/**/*.mm'

  spec.source_files = 'qv_commons/{age_gate,app_info,support,time,view_utils}/*.{h,cpp}',
                      'qv_commons/platform/*.{h,cpp}',
                      'qv_commons/platform/uikit/*.{h,mm}',
                      'qv_commons/platform/uikit/include/QV_Commons_iOS/*.h'
  spec.public_header_files = 'qv_commons/platform/uikit/include/QV_Commons_iOS/*.h'
  spec.header_dir = 'QV_Commons_iOS'
  spec.resource_bundles = {
    'QV_Commons_iOS' => ['qv_commons/resources/QV_Commons_iOS.bundle/*.lproj/*.{xib,strings}',
                         'qv_commons/resources/QV_Commons_iOS.bundle/*.xcprivacy']
  }

  spec.frameworks = 'Foundation', 'UIKit', 'MessageUI'
  spec.library = 'c++'
  # The host name of the maker's web site, on which the legal documents are: a fork sets its own here.
  maker_host = 'www.example.com'
  spec.pod_target_xcconfig = {
    'CLANG_CXX_LANGUAGE_STANDARD' => 'c++20',
    'HEADER_SEARCH_PATHS' => '"$(PODS_TARGET_SRCROOT)" "$(PODS_TARGET_SRCROOT)/qv_commons/platform/uikit/include"',
    'GCC_PREPROCESSOR_DEFINITIONS' => "$(inherited) QV_COMMONS_MAKER_HOST='\"#{maker_host}\"'",
    'GCC_SYMBOLS_PRIVATE_EXTERN' => 'YES',
    'GCC_INLINES_ARE_PRIVATE_EXTERN' => 'YES'
  }
  spec.user_target_xcconfig = { 'OTHER_LDFLAGS' => '-ObjC' }
end
