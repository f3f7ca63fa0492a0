#include "help/HelpTexts.h"

namespace tarnwick {

const std::vector<HelpText>& helpTexts() {
    static const std::vector<HelpText> texts = {
        {"mainHelp",
         "Here you cand find some Help about Tarnwick in general. This is a FAQ "
         "gathering all the questions that have been asked to me by email, and other "
         "things that I thought useful to add. If you have any question and/or "
         "suggestion, contact me with the Cydia form (application page, contact).\n\n"
         "Tarnwick 2 safeguard folder is located at "
         "/var/mobile/Library/Preferences/Tarnwick"},
        {"questionUntether",
         "How can I do if I want to restore my packages and if I've changed my "
         "jailbreak tool used (Taig to Pangu) ?"},
        {"replyUntether",
         "If, for example, you've upgraded your device to iOS 9.0.2 from iOS 8.4, "
         "you have so changed your jailbreak tool used (Taig to Pangu). But if you "
         "want to use your 8.4 backup in iOS 9.0.2, you need to know something.\n"
         "The restoration take all of your safeguarded packages, including the "
         "untether one. If you restore the 8.4 untether into iOS 9.0.2, your device "
         "will not be jailbroken anymore and it will go into bootloop, you'll have "
         "so to restore it. Before doing this restoration, you have to go to "
         "/var/mobile/Library/Preferences/Tarnwick/CydiaPackages and edit the "
         "installed-packages.txt file to delete all the packages that are Taig "
         "related (for example). It will prevent the restoration to send yur device "
         "to bootloop and you'll gain time !"},
        {"questionMajorIosUpdate",
         "Can I safely restore my apps/tweaks when I update my iOS device to a major "
         "release ?"},
        {"replyMAjorIosUpdate",
         "It depends on the iOS version(s) supported by the developpers. When you "
         "update to a minor iOS version from another minor one, in general you will "
         "don't have issues. But this is not the case when you update to a major "
         "release from a minor one (ex: iOS 8.4 to iOS 9.0.2). A lot of changes are "
         "done by Apple that break almost all of our favorites tweaks and devs have "
         "to work on them to resolve issue(s) before insuring the compatibility.\n"
         "My advises: before doing a restoration, go to the tweaks pages in Cydia to "
         "check the compatibility, and if all of your tweaks are compatible, do your "
         "restore ! Or you can also search for the iOS X compatibility list that is "
         "in general present in Reddit /jailbreak. You can also restore all your "
         "tweaks without checking, but that's really not advised ! If you do that "
         "and have a system crash, you'll have the possibility to reboot in Safe "
         "mode (Power and when Apple logo appear press Volume Up until device is "
         "booted) and uninstall all of your recently installed tweak until you find "
         "the guilty !"},
        {"questionTime", "How much time it take to do an All in one backup ?"},
        {"replyTime",
         "It depends on how much files you have. For example, on an iPhone 5S, 16 "
         "Go, 400 Mo of photos, 100 Mo of messages, 100 contacts, etc... It took me "
         "only 4 mn 8 But it can depend also on the model of your device (more "
         "recent model can be faster), if your device is busy with other background "
         "task etc..."},
        {"questionCydia",
         "With Cydia 1.1.19 and above, I had to change the Sources restoration "
         "method. Please read this..."},
        {"replyCydia",
         "Cydia 1.1.19 has changed Sources file location. To ensure compatibility "
         "with this Cydia version and above, I had to change the way I restore them.\n"
         "Now a new .list file is created in /etc/apt/sources.list.d/ "
         "(TWKSources.list). This will change nothing for you for accessing tweaks "
         "from these sources, you just can't delete them from Cydia. That's why I've "
         "added an option to the Options pages to allow you to delete sources added "
         "by this way ;) (Please note that this will delete all Sources restored by "
         "Tarnwick, I will in the future add a way to delete one at one)"},
    };
    return texts;
}

}  // namespace tarnwick
