#!/usr/bin/python3
"""The example app for iOS calls every service, and its parts go together."""

import json
import os
import plistlib
import unittest

import python_test

HOST = os.path.join(os.path.dirname(__file__), '../../examples/ios_host')

# By the call in Objective-C, and in Swift.
SERVICES = (
    ('[QV_AgeGateHelper startAgeGateProcessWithViewController:',
     'QV_AgeGateHelper.startAgeGateProcess('),
    ('[QV_AgeGateColorTheme defaultTheme]', '.defaultTheme()'),
    ('initWithBackgroundColor:', None),
    ('[QV_SupportHelper.shared contactSupportWithViewController:',
     'QV_SupportHelper.shared.contactSupport('),
    ('- (void)onCompletion {', 'func onCompletion() {'),
    ('[QV_RateHelper openWriteReviewOnAppStoreWithAppId:',
     'QV_RateHelper.openWriteReviewOnAppStore(appId:'),
    ('QV_Links.privacyPolicy', 'QV_Links.privacyPolicy()'),
    ('QV_Links.termsOfService', 'QV_Links.termsOfService()'),
    ('[QV_AppInfoHelper appName]', 'QV_AppInfoHelper.appName()'),
    ('[QV_AppInfoHelper appVersion]', 'QV_AppInfoHelper.appVersion()'),
    ('[QV_AppInfoHelper appId]', 'QV_AppInfoHelper.appId()'),
    ('[QV_BundleFileHelper getQVCommonsResourceBundle]',
     'QV_BundleFileHelper.getQVCommonsResourceBundle()'),
    ('[QV_BundleFileHelper loadJsonFromBundleWithFilename:',
     'QV_BundleFileHelper.loadJsonFromBundle(filename:'),
    ('[QV_ViewControllerHelper topViewControllerWithController:',
     'QV_ViewControllerHelper.topViewController(controller:'),
    ('.qv_searchTextField_all_iOS_versions', '.qv_searchTextField_all_iOS_versions'),
    (None, 'QV_TimeHelper.currentTimeInMilliseconds()'),
    (None, 'QV_TimeHelper.currentTimeInSeconds()'),
    (None, 'QV_TimeHelper.secondsToMinutes(62, roundUp:'),
    (None, 'QV_TimeHelper.secondsToDays(seconds:'),
    (None, 'QV_TimeHelper.secondsToHms('),
    (None, 'QV_TimeHelper.secondsToHmsDigits('),
    (None, 'QV_TimeHelper.hmsToSeconds('),
)


def read(file):
    with open(os.path.join(HOST, file), encoding='utf-8') as text:
        return text.read()


class IosHost(unittest.TestCase):
    def test_every_service_is_called(self):
        objective_c, swift = read('ServicesViewController.m'), read('TimesViewController.swift')
        for selector, call in SERVICES:
            if selector is not None:
                self.assertIn(selector, objective_c)
            if call is not None:
                self.assertIn(call, swift)

    def test_what_is_named_by_text_is_there(self):
        with open(os.path.join(HOST, 'Info.plist'), 'rb') as file:
            info = plistlib.load(file)
        scenes = info['UIApplicationSceneManifest']['UISceneConfigurations']
        delegate = scenes['UIWindowSceneSessionRoleApplication'][0]['UISceneDelegateClassName']
        self.assertIn(f'@implementation {delegate}\n', read(delegate + '.m'))
        self.assertIn('NSClassFromString(@"TimesViewController")', read('RootViewController.m'))
        self.assertIn('@objc(TimesViewController)', read('TimesViewController.swift'))
        # The one launch screen that systems 11 to 13 know, too.
        self.assertIn('launchScreen="YES"', read(info['UILaunchStoryboardName'] + '.storyboard'))
        self.assertEqual(json.loads(read('greeting.json')), {'greeting': 'Hello'})

    def test_the_project_builds_every_source(self):
        listed = read('CMakeLists.txt')
        for file in os.listdir(HOST):
            if file.endswith(('.m', '.swift', '.json', '.storyboard')):
                self.assertIn(f'  {file}', listed)


if __name__ == '__main__':
    python_test.main()
