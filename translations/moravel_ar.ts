<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>moravel</name>
    <message>
        <source>This action cannot be undone.</source>
        <translation>لا يمكن التراجع عن هذا الإجراء.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected pic?</source>
        <translation>هل تريد حقًا حذف الصورة المحددة؟</translation>
    </message>
    <message numerus="yes">
        <source>Are you sure you want to delete the %n selected pics?</source>
        <translation>
            <numerusform>هل تريد حقًا حذف الصور المحددة؟</numerusform>
            <numerusform>هل تريد حقًا حذف الصورة المحددة؟</numerusform>
            <numerusform>هل تريد حقًا حذف الصورتين المحددتين؟</numerusform>
            <numerusform>هل تريد حقًا حذف %Ln صور محددة؟</numerusform>
            <numerusform>هل تريد حقًا حذف %Ln صورة محددة؟</numerusform>
            <numerusform>هل تريد حقًا حذف %Ln صورة محددة؟</numerusform>
        </translation>
    </message>
    <message>
        <source>File too big</source>
        <translation>الملف كبير جدًا</translation>
    </message>
    <message>
        <source>That pic will take ages to display, so your system will appear frozen.</source>
        <translation>سيستغرق عرض هذه الصورة وقتًا طويلًا جدًا، وسيبدو النظام متجمدًا أثناء ذلك.</translation>
    </message>
    <message>
        <source>Don&apos;t Show</source>
        <translation>عدم العرض</translation>
    </message>
    <message>
        <source>Show Anyway</source>
        <translation>العرض على أي حال</translation>
    </message>
    <message>
        <source>Error opening System Preferences</source>
        <translation>حدث خطأ عند فتح إعدادات النظام</translation>
    </message>
    <message>
        <source>Keep this desktop for 1 hour</source>
        <translation>إبقاء هذه الخلفية ساعة واحدة</translation>
    </message>
    <message>
        <source>Change desktop now</source>
        <translation>تغيير الخلفية الآن</translation>
    </message>
    <message>
        <source>Back to previous desktop</source>
        <translation>العودة إلى الخلفية السابقة</translation>
    </message>
    <message numerus="yes">
        <source>New desktop in %n hours</source>
        <translation>
            <numerusform>خلفية جديدة خلال أقل من ساعة</numerusform>
            <numerusform>خلفية جديدة خلال ساعة</numerusform>
            <numerusform>خلفية جديدة خلال ساعتين</numerusform>
            <numerusform>خلفية جديدة خلال %Ln ساعات</numerusform>
            <numerusform>خلفية جديدة خلال %Ln ساعة</numerusform>
            <numerusform>خلفية جديدة خلال %Ln ساعة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>New desktop in %n minutes</source>
        <translation>
            <numerusform>خلفية جديدة خلال أقل من دقيقة</numerusform>
            <numerusform>خلفية جديدة خلال دقيقة</numerusform>
            <numerusform>خلفية جديدة خلال دقيقتين</numerusform>
            <numerusform>خلفية جديدة خلال %Ln دقائق</numerusform>
            <numerusform>خلفية جديدة خلال %Ln دقيقة</numerusform>
            <numerusform>خلفية جديدة خلال %Ln دقيقة</numerusform>
        </translation>
    </message>
    <message>
        <source>New desktop in about 1 minute</source>
        <translation>خلفية جديدة خلال دقيقة تقريبًا</translation>
    </message>
    <message>
        <source>Desktop set by System Prefs</source>
        <translation>الخلفية محددة من إعدادات النظام</translation>
    </message>
    <message>
        <source>No desktop change scheduled</source>
        <translation>لا يوجد تغيير مقرر للخلفية</translation>
    </message>
    <message>
        <source>Moravel is free software:</source>
        <translation>Moravel برنامج حر:</translation>
    </message>
    <message>
        <source>It uses these libraries, each under its own licence:</source>
        <translation>وهو يستخدم المكتبات التالية، ولكل منها رخصتها:</translation>
    </message>
    <message>
        <source>No source is known yet: the service has not answered.</source>
        <translation>لا يُعرف أي مصدر بعد: لم تُجب الخدمة.</translation>
    </message>
    <message>
        <source>The pictures belong to those who made them. They come from:</source>
        <translation>الصور ملك لمن التقطها أو صنعها، وهي واردة من:</translation>
    </message>
    <message>
        <source>They were found by the service at %1.</source>
        <translation>عثرت عليها الخدمة الموجودة في ⁨%1⁩.</translation>
    </message>
    <message>
        <source>About Moravel</source>
        <translation>حول Moravel</translation>
    </message>
    <message>
        <source>&amp;Sources</source>
        <translation>المصاد&amp;ر</translation>
    </message>
    <message>
        <source>&amp;Licences</source>
        <translation>&amp;الرخص</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>الإصدار ⁨%1⁩</translation>
    </message>
    <message>
        <source>Shows the pictures of the day of many sources side by side, keeps every one with its caption, and makes any of them the desktop picture.</source>
        <translation>يعرض صور اليوم من مصادر كثيرة جنبًا إلى جنب، ويحفظ كل صورة مع شرحها، ويجعل أيًا منها خلفية لسطح المكتب.</translation>
    </message>
    <message>
        <source>Set as &amp;Desktop</source>
        <translation>تعيين ك&amp;خلفية</translation>
    </message>
    <message>
        <source>Show &amp;Large Picture</source>
        <translation>عرض الصورة ال&amp;كبيرة</translation>
    </message>
    <message>
        <source>Show in &amp;File Manager</source>
        <translation>إظهار في مدير ال&amp;ملفات</translation>
    </message>
    <message>
        <source>Look Up &amp;Caption Again</source>
        <translation>جلب ال&amp;شرح من جديد</translation>
    </message>
    <message>
        <source>&amp;New Desktop</source>
        <translation>خلفية &amp;جديدة</translation>
    </message>
    <message>
        <source>&amp;Previous Desktop</source>
        <translation>الخلفية ال&amp;سابقة</translation>
    </message>
    <message>
        <source>&amp;Restore Picture</source>
        <translation>استعادة ال&amp;صورة</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>ت&amp;حديث</translation>
    </message>
    <message>
        <source>D&amp;elete</source>
        <translation>ح&amp;ذف</translation>
    </message>
    <message>
        <source>Service &amp;Home Page</source>
        <translation>صفحة ال&amp;خدمة</translation>
    </message>
    <message>
        <source>&amp;News</source>
        <translation>الأخ&amp;بار</translation>
    </message>
    <message>
        <source>&amp;Release Notes</source>
        <translation>ملاحظات الإ&amp;صدار</translation>
    </message>
    <message>
        <source>Report a &amp;Bug…</source>
        <translation>الإبلاغ عن خ&amp;طأ…</translation>
    </message>
    <message>
        <source>&amp;About Moravel</source>
        <translation>&amp;حول Moravel</translation>
    </message>
    <message>
        <source>&amp;Previous Picture</source>
        <translation>الصورة ال&amp;سابقة</translation>
    </message>
    <message>
        <source>&amp;Next Picture</source>
        <translation>الصورة ال&amp;تالية</translation>
    </message>
    <message>
        <source>&amp;Original Page</source>
        <translation>الصفحة ال&amp;أصلية</translation>
    </message>
    <message>
        <source>Share by &amp;E-mail</source>
        <translation>مشاركة بال&amp;بريد الإلكتروني</translation>
    </message>
    <message>
        <source>Share on Face&amp;book</source>
        <translation>مشاركة على &amp;Facebook</translation>
    </message>
    <message>
        <source>Share on &amp;Twitter</source>
        <translation>مشاركة على &amp;Twitter</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>ح&amp;ذف</translation>
    </message>
    <message>
        <source>Fit &amp;Window to Picture</source>
        <translation>ملاءمة ال&amp;نافذة للصورة</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>ت&amp;كبير</translation>
    </message>
    <message>
        <source>Zoom O&amp;ut</source>
        <translation>تص&amp;غير</translation>
    </message>
    <message>
        <source>&amp;Zoom to Fit</source>
        <translation>&amp;عرض كامل الصورة</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>ال&amp;حجم الفعلي</translation>
    </message>
    <message>
        <source>Full Sc&amp;reen</source>
        <translation>ملء ال&amp;شاشة</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إغلا&amp;ق</translation>
    </message>
    <message>
        <source>This picture was downloaded using an older version of Moravel, so no detailed information is available.</source>
        <translation>نُزّلت هذه الصورة بإصدار أقدم من Moravel، ولذلك لا تتوفر عنها معلومات مفصلة.</translation>
    </message>
    <message>
        <source>Looking for more info...</source>
        <translation>يجري البحث عن مزيد من المعلومات…</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 بايت</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 كيلوبايت</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 ميغابايت</translation>
    </message>
    <message>
        <source>%1 (%2 x %3 pixels)</source>
        <translation>⁨%1⁩ (%2 × %3 بكسل)</translation>
    </message>
    <message>
        <source>%1 (%2 x %3 pixels, %4)</source>
        <translation>⁨%1⁩ (%2 × %3 بكسل، %4)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>⁨%1⁩ (%2)</translation>
    </message>
    <message>
        <source>Moravel</source>
        <translation>Moravel</translation>
    </message>
    <message>
        <source>Set as desktop</source>
        <translation>تعيين كخلفية</translation>
    </message>
    <message>
        <source>New picture of the day</source>
        <translation>صورة يوم جديدة</translation>
    </message>
    <message>
        <source>The script ended with error %1.</source>
        <translation>انتهى البرنامج النصي بالخطأ %1.</translation>
    </message>
    <message>
        <source>bad request</source>
        <translation>طلب غير صالح</translation>
    </message>
    <message>
        <source>login required</source>
        <translation>تسجيل الدخول مطلوب</translation>
    </message>
    <message>
        <source>access denied</source>
        <translation>الوصول مرفوض</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>غير موجود</translation>
    </message>
    <message>
        <source>request timed out</source>
        <translation>انتهت مهلة الطلب</translation>
    </message>
    <message>
        <source>no longer there</source>
        <translation>لم يعد موجودًا</translation>
    </message>
    <message>
        <source>too many requests</source>
        <translation>طلبات كثيرة جدًا</translation>
    </message>
    <message>
        <source>internal error</source>
        <translation>خطأ داخلي</translation>
    </message>
    <message>
        <source>bad gateway</source>
        <translation>بوابة معطوبة</translation>
    </message>
    <message>
        <source>service unavailable</source>
        <translation>الخدمة غير متاحة</translation>
    </message>
    <message>
        <source>gateway timed out</source>
        <translation>انتهت مهلة البوابة</translation>
    </message>
    <message>
        <source>unexpected answer</source>
        <translation>إجابة غير متوقعة</translation>
    </message>
    <message>
        <source>request refused</source>
        <translation>الطلب مرفوض</translation>
    </message>
    <message>
        <source>server error</source>
        <translation>خطأ في الخادم</translation>
    </message>
    <message>
        <source>The server refers to a forbidden address.</source>
        <translation>يحيل الخادم إلى عنوان محظور.</translation>
    </message>
    <message>
        <source>The server answered with error %1 (%2).</source>
        <translation>أجاب الخادم بالخطأ %1 (%2).</translation>
    </message>
    <message>
        <source>The server %1 could not be found.</source>
        <translation>تعذر العثور على الخادم ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The server %1 could not be reached.</source>
        <translation>تعذر الوصول إلى الخادم ⁨%1⁩.</translation>
    </message>
    <message>
        <source>A secure connection to %1 could not be made.</source>
        <translation>تعذر إنشاء اتصال آمن مع ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The proxy server could not be used.</source>
        <translation>تعذر استخدام الخادم الوكيل.</translation>
    </message>
    <message>
        <source>The answer is larger than %1.</source>
        <translation>الإجابة أكبر من ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The server took too long to answer.</source>
        <translation>استغرق الخادم وقتًا طويلًا للإجابة.</translation>
    </message>
    <message>
        <source>The connection was lost before the answer was complete.</source>
        <translation>انقطع الاتصال قبل اكتمال الإجابة.</translation>
    </message>
    <message>
        <source>The server&apos;s answer could not be understood.</source>
        <translation>تعذر فهم إجابة الخادم.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>العنوان غير صالح.</translation>
    </message>
    <message>
        <source>Looking up caption...</source>
        <translation>يجري جلب الشرح…</translation>
    </message>
    <message>
        <source>Looking for new pic from %1...</source>
        <translation>يجري البحث عن صورة جديدة من ⁨%1⁩…</translation>
    </message>
    <message>
        <source>Double-click any thumbnail to set as desktop.</source>
        <translation>انقر نقرًا مزدوجًا على أي صورة مصغرة لتعيينها خلفية.</translation>
    </message>
    <message>
        <source>Downloading pic from %1: %2 of %3 KB</source>
        <translation>يجري تنزيل صورة من ⁨%1⁩: %2 من %3 كيلوبايت</translation>
    </message>
    <message>
        <source>Saving pic from %1...</source>
        <translation>يجري حفظ صورة من ⁨%1⁩…</translation>
    </message>
    <message>
        <source>(This text is long. It is in the clipboard as well: paste it here if its end is missing.)

</source>
        <translation>(هذا النص طويل، وهو موجود في الحافظة أيضًا: الصقه هنا إن كانت نهايته ناقصة.)

</translation>
    </message>
    <message>
        <source>The original web page could not be found.</source>
        <translation>تعذر العثور على صفحة الويب الأصلية.</translation>
    </message>
    <message>
        <source>Sorry, that picture could not be posted on Facebook.</source>
        <translation>عذرًا، تعذر نشر هذه الصورة على Facebook.</translation>
    </message>
    <message>
        <source>You will now be taken to your web browser with a link that will allow you to share this picture on Facebook.

More information about the picture is in the clipboard for pasting into the Facebook messsage area.
</source>
        <translation>سيُفتح الآن متصفح الويب على رابط يتيح مشاركة هذه الصورة على Facebook.

توجد معلومات أكثر عن الصورة في الحافظة، ويمكن لصقها في حقل الرسالة هناك.
</translation>
    </message>
    <message>
        <source>This message will not be shown again.</source>
        <translation>لن تظهر هذه الرسالة مرة أخرى.</translation>
    </message>
    <message>
        <source>Sorry, that picture could not be posted on Twitter.</source>
        <translation>عذرًا، تعذر نشر هذه الصورة على Twitter.</translation>
    </message>
    <message>
        <source>Sorry, that picture could not be shared via email.</source>
        <translation>عذرًا، تعذرت مشاركة هذه الصورة بالبريد الإلكتروني.</translation>
    </message>
    <message>
        <source>Error creating Moravel folder.</source>
        <translation>حدث خطأ عند إنشاء مجلد Moravel.</translation>
    </message>
    <message>
        <source>Error creating Moravel thumbs folder.</source>
        <translation>حدث خطأ عند إنشاء مجلد الصور المصغرة لبرنامج Moravel.</translation>
    </message>
    <message>
        <source>Error creating Moravel support folder.</source>
        <translation>حدث خطأ عند إنشاء مجلد بيانات Moravel.</translation>
    </message>
    <message>
        <source>Error moving Moravel data file to support folder.</source>
        <translation>حدث خطأ عند نقل ملف بيانات Moravel إلى مجلد البيانات.</translation>
    </message>
    <message>
        <source>Error storing Moravel data.</source>
        <translation>حدث خطأ عند حفظ بيانات Moravel.</translation>
    </message>
    <message>
        <source>Deleted.

Double-click to un-delete.</source>
        <translation>حُذفت.

انقر نقرًا مزدوجًا لاستعادتها.</translation>
    </message>
    <message>
        <source>the screen is locked</source>
        <translation>الشاشة مقفلة</translation>
    </message>
    <message>
        <source>another program fills the screen</source>
        <translation>برنامجًا آخر يملأ الشاشة</translation>
    </message>
    <message>
        <source>the connection is metered</source>
        <translation>الاتصال محدود البيانات</translation>
    </message>
    <message>
        <source>the battery is being saved</source>
        <translation>البطارية في وضع التوفير</translation>
    </message>
    <message>
        <source>the battery is low</source>
        <translation>البطارية منخفضة</translation>
    </message>
    <message>
        <source>there is no connection</source>
        <translation>الاتصال منقطع</translation>
    </message>
    <message>
        <source>New pictures wait, since %1.</source>
        <translation>الصور الجديدة في الانتظار لأن %1.</translation>
    </message>
    <message>
        <source>New desktop waits, since %1</source>
        <translation>الخلفية الجديدة في الانتظار لأن %1</translation>
    </message>
    <message>
        <source>Another request came first.</source>
        <translation>سبقه طلب آخر.</translation>
    </message>
    <message>
        <source>Pictures of the day on your desktop from the start.</source>
        <translation>صور اليوم على سطح المكتب منذ البداية.</translation>
    </message>
    <message>
        <source>The desktop did not allow it.</source>
        <translation>لم تسمح بيئة سطح المكتب بذلك.</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>المصدر:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>التاريخ:</translation>
    </message>
    <message>
        <source>Caption:</source>
        <translation>الشرح:</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>الملف:</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>الصفحة:</translation>
    </message>
    <message>
        <source>Try &apos;moravel --help&apos;.</source>
        <translation>جرّب ⁨moravel --help⁩.</translation>
    </message>
    <message>
        <source>the path of a picture</source>
        <translation>مسار صورة</translation>
    </message>
    <message>
        <source>--sources needs &quot;all&quot; or a list of source names</source>
        <translation>يحتاج ⁨--sources⁩ إلى «all» أو قائمة بأسماء المصادر</translation>
    </message>
    <message>
        <source>unknown option: %1</source>
        <translation>خيار غير معروف: ⁨%1⁩</translation>
    </message>
    <message>
        <source>--json goes with the command current</source>
        <translation>⁨--json⁩ يُستعمل مع الأمر ⁨current⁩</translation>
    </message>
    <message>
        <source>unknown command: %1</source>
        <translation>أمر غير معروف: ⁨%1⁩</translation>
    </message>
    <message>
        <source>%1 does not go with the command %2</source>
        <translation>لا يُستعمل ⁨%1⁩ مع الأمر ⁨%2⁩</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <translation>يحتاج ⁨%1⁩ إلى %2</translation>
    </message>
    <message>
        <source>%1 cannot take: %2</source>
        <translation>لا يقبل ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>Usage: moravel [--sources LIST] [--hidden]
  or:  moravel COMMAND
Shows the pictures of the day of many sources and keeps them in your Pictures folder.

Options:
  --sources LIST  switch these sources on and remember it: long names with commas between,
                  or all
  --hidden        start without the window, in the tray (minimised where there is none)
  --json          with current: answer in JSON
  -h, --help      show this text
  --version       show the version and the address of the service

Commands for the running program:
  next            change the desktop picture
  previous        go back to the desktop picture before
  hold            keep the desktop picture for an hour
  current         tell source, date, caption, file and page of the desktop picture
  set FILE        make a picture file the desktop
  show            bring the window to the front
  large           show a picture large: the desktop&apos;s, as a rule
  browser         open the browser of the collection
  quit            end the program

Started a second time without a command, the program brings its window to the front and hands
the sources over.

Exit codes: 0 done; 1 refused or no answer; 2 wrong arguments; 3 not running (commands only).
</source>
        <translation>الاستخدام: moravel [--sources LIST] [--hidden]
       أو: moravel COMMAND
يعرض صور اليوم من مصادر كثيرة ويحفظها في مجلد الصور.

الخيارات:
  --sources LIST  تشغيل هذه المصادر وتذكّرها: أسماؤها الطويلة مفصولة بفواصل، أو all للكل
  --hidden        البدء بلا نافذة، في منطقة الإشعارات (أو مصغرًا حيث لا توجد)
  --json          مع current: الإجابة بصيغة JSON
  -h, --help      عرض هذا النص
  --version       عرض الإصدار وعنوان الخدمة

أوامر للبرنامج قيد التشغيل:
  next            تغيير خلفية سطح المكتب
  previous        العودة إلى الخلفية السابقة
  hold            إبقاء الخلفية ساعة واحدة
  current         ذكر المصدر والتاريخ والشرح والملف والصفحة للخلفية
  set FILE        جعل ملف صورة خلفيةً لسطح المكتب
  show            إحضار النافذة إلى المقدمة
  large           عرض صورة كبيرة، وهي الخلفية عادةً
  browser         فتح مجموعة الصور
  quit            إنهاء البرنامج

إذا شُغّل البرنامج مرة ثانية دون أمر، أحضر نافذته إلى المقدمة وتسلّم المصادر.

رموز الإنهاء: 0 تم؛ 1 رُفض أو لا إجابة؛ 2 معاملات خاطئة؛ 3 لا يعمل (للأوامر فقط).
</translation>
    </message>
    <message>
        <source>No desktop picture can be set here.</source>
        <translation>لا يمكن تعيين خلفية هنا.</translation>
    </message>
    <message>
        <source>There is nothing to show yet.</source>
        <translation>لا يوجد ما يُعرض بعد.</translation>
    </message>
    <message>
        <source>There is no such file; its path must be absolute.</source>
        <translation>لا يوجد ملف كهذا؛ يجب أن يكون مساره مطلقًا.</translation>
    </message>
    <message>
        <source>The file is not a picture that can be read.</source>
        <translation>الملف ليس صورة يمكن قراءتها.</translation>
    </message>
    <message>
        <source>It is not known what the desktop shows.</source>
        <translation>لا يُعرف ما يعرضه سطح المكتب.</translation>
    </message>
    <message>
        <source>There is no previous desktop.</source>
        <translation>لا توجد خلفية سابقة.</translation>
    </message>
    <message>
        <source>The desktop changes every hour or more rarely.</source>
        <translation>تتغير الخلفية كل ساعة أو أقل من ذلك.</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>لا يوجد أمر باسم «%1».</translation>
    </message>
    <message>
        <source>Moravel is still starting</source>
        <translation>لا يزال Moravel يبدأ</translation>
    </message>
    <message>
        <source>Moravel takes no actions</source>
        <translation>Moravel لا يقبل أوامر</translation>
    </message>
    <message>
        <source>Moravel is not running</source>
        <translation>Moravel لا يعمل</translation>
    </message>
    <message>
        <source>Moravel is running but does not answer</source>
        <translation>Moravel يعمل لكنه لا يجيب</translation>
    </message>
</context>
<context>
    <name>moravel::Browser</name>
    <message>
        <source>No pictures yet</source>
        <translation>لا توجد صور بعد</translation>
    </message>
    <message>
        <source>The pictures that Moravel gathers appear here, the newest first. Drop files or folders to look at others.</source>
        <translation>تظهر هنا الصور التي يجمعها Moravel، الأحدث أولًا. أفلت ملفات أو مجلدات هنا لعرض صور أخرى.</translation>
    </message>
    <message>
        <source>No pictures found</source>
        <translation>لم يُعثر على صور</translation>
    </message>
    <message>
        <source>No caption contains what you are looking for.</source>
        <translation>لا يحتوي أي شرح على النص المطلوب.</translation>
    </message>
    <message>
        <source>This source has no picture with such a caption.</source>
        <translation>ليس لهذا المصدر صورة بشرح كهذا.</translation>
    </message>
</context>
<context>
    <name>moravel::BrowserSide</name>
    <message>
        <source>Picture &amp;Browser</source>
        <translation>مجموعة ال&amp;صور</translation>
    </message>
</context>
<context>
    <name>moravel::BrowserWindow</name>
    <message>
        <source>Picture Browser</source>
        <translation>مجموعة الصور</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>المصدر</translation>
    </message>
    <message>
        <source>Show the pictures of one source only</source>
        <translation>عرض صور مصدر واحد فقط</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>عرض الكل</translation>
    </message>
    <message>
        <source>Search captions</source>
        <translation>البحث في الشروح</translation>
    </message>
    <message>
        <source>Picture size</source>
        <translation>حجم الصور</translation>
    </message>
    <message>
        <source>Set as Desktop</source>
        <translation>تعيين كخلفية</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>معلومات</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>إظهار في مدير الملفات</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures.</source>
        <translation>
            <numerusform>لا صور.</numerusform>
            <numerusform>صورة واحدة.</numerusform>
            <numerusform>صورتان.</numerusform>
            <numerusform>%Ln صور.</numerusform>
            <numerusform>%Ln صورة.</numerusform>
            <numerusform>%Ln صورة.</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>امسح البحث</translation>
    </message>
</context>
<context>
    <name>moravel::CellButtonBar</name>
    <message>
        <source>Commands</source>
        <translation>الأوامر</translation>
    </message>
</context>
<context>
    <name>moravel::CellWidget</name>
    <message>
        <source>Current desktop</source>
        <translation>الخلفية الحالية</translation>
    </message>
    <message>
        <source>Previous desktop</source>
        <translation>الخلفية السابقة</translation>
    </message>
    <message>
        <source>New desktop</source>
        <translation>خلفية جديدة</translation>
    </message>
    <message>
        <source>More info</source>
        <translation>مزيد من المعلومات</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
</context>
<context>
    <name>moravel::DatePickerWidget</name>
    <message>
        <source>Date of the pictures</source>
        <translation>تاريخ الصور</translation>
    </message>
</context>
<context>
    <name>moravel::DesktopMenu</name>
    <message>
        <source>Change &amp;Every</source>
        <translation>&amp;تغيير الخلفية</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>أبدًا</translation>
    </message>
    <message>
        <source>5 Minutes</source>
        <translation>كل خمس دقائق</translation>
    </message>
    <message>
        <source>15 Minutes</source>
        <translation>كل ربع ساعة</translation>
    </message>
    <message>
        <source>30 Minutes</source>
        <translation>كل نصف ساعة</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>كل ساعة</translation>
    </message>
    <message>
        <source>2 Hours</source>
        <translation>كل ساعتين</translation>
    </message>
    <message>
        <source>4 Hours</source>
        <translation>كل أربع ساعات</translation>
    </message>
    <message>
        <source>8 Hours</source>
        <translation>كل ثماني ساعات</translation>
    </message>
    <message>
        <source>24 Hours</source>
        <translation>كل أربع وعشرين ساعة</translation>
    </message>
    <message>
        <source>&amp;Sizing</source>
        <translation>&amp;حجم الصورة</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>Fit to Screen</source>
        <translation>احتواء ضمن الشاشة</translation>
    </message>
    <message>
        <source>Fill Screen</source>
        <translation>ملء الشاشة</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>توسيط</translation>
    </message>
    <message>
        <source>All S&amp;creens</source>
        <translation>جميع ال&amp;شاشات</translation>
    </message>
    <message>
        <source>All Virtual &amp;Desktops</source>
        <translation>جميع أسطح المكتب ال&amp;افتراضية</translation>
    </message>
    <message>
        <source>System Desktop Se&amp;ttings…</source>
        <translation>إعدادات ال&amp;نظام للخلفية…</translation>
    </message>
    <message>
        <source>Change Desktop &amp;Now</source>
        <translation>تغيير ال&amp;خلفية الآن</translation>
    </message>
    <message>
        <source>&amp;Back to Previous Desktop</source>
        <translation>ال&amp;عودة إلى الخلفية السابقة</translation>
    </message>
    <message>
        <source>&amp;Keep This Desktop for 1 Hour</source>
        <translation>إ&amp;بقاء هذه الخلفية ساعة واحدة</translation>
    </message>
</context>
<context>
    <name>moravel::DiskSide</name>
    <message>
        <source>&amp;Disk Space…</source>
        <translation>مساحة ال&amp;قرص…</translation>
    </message>
</context>
<context>
    <name>moravel::DiskSpaceSheet</name>
    <message>
        <source>Disk space by source</source>
        <translation>مساحة القرص حسب المصدر</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>المصدر</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Disk Space</source>
        <translation>مساحة القرص</translation>
    </message>
    <message>
        <source>Looking at the pictures…</source>
        <translation>يجري فحص الصور…</translation>
    </message>
    <message>
        <source>&amp;Keep the pictures below:</source>
        <translation>إب&amp;قاء الصور دون:</translation>
    </message>
    <message>
        <source>No Limit</source>
        <translation>بلا حد</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 غيغابايت</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>الصور المصغرة</translation>
    </message>
    <message>
        <source>Other files in the folder</source>
        <translation>ملفات أخرى في المجلد</translation>
    </message>
    <message>
        <source>All pictures stay.</source>
        <translation>تبقى كل الصور.</translation>
    </message>
    <message>
        <source>All pictures stay for now.</source>
        <translation>تبقى كل الصور في الوقت الحالي.</translation>
    </message>
    <message>
        <source>What you set as desktop stays, and so do thumbnails and captions. A picture that went comes back when you open it.</source>
        <translation>تبقى الصور التي عُيّنت خلفيات، وكذلك الصور المصغرة والشروح. وتعود الصورة التي أزيلت عند فتحها.</translation>
    </message>
    <message>
        <source>The collection takes %1. Full pictures: %2 (%3).</source>
        <translation>تشغل المجموعة %1. الصور الكاملة: %2 (%3).</translation>
    </message>
    <message>
        <source>Oldest pictures that go to the Trash now: %1 (%2).</source>
        <translation>أقدم الصور التي تُنقل الآن إلى المهملات: %1 (%2).</translation>
    </message>
</context>
<context>
    <name>moravel::GridPanel</name>
    <message>
        <source>The picture service does not answer</source>
        <translation>خدمة الصور لا تجيب</translation>
    </message>
    <message>
        <source>No list of sources could be loaded. Moravel shows pictures as soon as the service can be reached.</source>
        <translation>تعذر تحميل قائمة المصادر. سيعرض Moravel الصور حالما يصبح الوصول إلى الخدمة ممكنًا.</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>إعادة المحا&amp;ولة</translation>
    </message>
    <message>
        <source>No source is switched on</source>
        <translation>لم يُشغَّل أي مصدر</translation>
    </message>
    <message>
        <source>Switch on the sources that you want to see in the Sources menu.</source>
        <translation>شغّل المصادر التي تريد رؤيتها من قائمة «المصادر».</translation>
    </message>
</context>
<context>
    <name>moravel::GridView</name>
    <message>
        <source>Pictures of the day</source>
        <translation>صور اليوم</translation>
    </message>
</context>
<context>
    <name>moravel::LargePicWindow</name>
    <message>
        <source>This file cannot be shown as a picture.</source>
        <translation>لا يمكن عرض هذا الملف كصورة.</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>التنزيل</translation>
    </message>
</context>
<context>
    <name>moravel::MainWindow</name>
    <message>
        <source>Show &amp;Large Picture</source>
        <translation>عرض الصورة ال&amp;كبيرة</translation>
    </message>
    <message>
        <source>Moravel</source>
        <translation>Moravel</translation>
    </message>
    <message>
        <source>&amp;Previous Day</source>
        <translation>اليوم ال&amp;سابق</translation>
    </message>
    <message>
        <source>Previous day</source>
        <translation>اليوم السابق</translation>
    </message>
    <message>
        <source>&amp;Next Day</source>
        <translation>اليوم ال&amp;تالي</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>اليوم التالي</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>الي&amp;وم</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>&amp;Sources</source>
        <translation>الم&amp;صادر</translation>
    </message>
    <message>
        <source>&amp;Desktop</source>
        <translation>&amp;سطح المكتب</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;عرض</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>مساع&amp;دة</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إ&amp;غلاق</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>إن&amp;هاء</translation>
    </message>
    <message>
        <source>Show &amp;Side Bar</source>
        <translation>إظهار الشريط ال&amp;جانبي</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>ملء ال&amp;شاشة</translation>
    </message>
</context>
<context>
    <name>moravel::PicDetails</name>
    <message>
        <source>About this picture</source>
        <translation>عن هذه الصورة</translation>
    </message>
</context>
<context>
    <name>moravel::QuietSide</name>
    <message>
        <source>Stay Quiet &amp;When Needed</source>
        <translation>الت&amp;زام الهدوء عند الحاجة</translation>
    </message>
    <message>
        <source>On a low or saved battery, on a metered connection, while another program fills the screen and while it is locked, nothing is fetched and the desktop stays.</source>
        <translation>عند ضعف البطارية أو توفيرها، وعند محدودية بيانات الاتصال، وما دام برنامج آخر يملأ الشاشة أو كانت مقفلة، لا يُنزَّل شيء وتبقى الخلفية كما هي.</translation>
    </message>
</context>
<context>
    <name>moravel::ShareSide</name>
    <message>
        <source>There is no news.</source>
        <translation>لا توجد أخبار.</translation>
    </message>
</context>
<context>
    <name>moravel::SideBar</name>
    <message>
        <source>&amp;Keep for 1 hour</source>
        <translation>إ&amp;بقاؤها ساعة واحدة</translation>
    </message>
    <message>
        <source>Read the &amp;News</source>
        <translation>&amp;قراءة الأخبار</translation>
    </message>
</context>
<context>
    <name>moravel::SourceGrid</name>
    <message>
        <source>Switch &amp;All On</source>
        <translation>تشغيل ال&amp;كل</translation>
    </message>
    <message>
        <source>Switch All &amp;Off</source>
        <translation>إ&amp;يقاف الكل</translation>
    </message>
</context>
<context>
    <name>moravel::Spinner</name>
    <message>
        <source>Loading</source>
        <translation>يجري التحميل</translation>
    </message>
</context>
<context>
    <name>moravel::SplitView</name>
    <message>
        <source>Double-click to hide or show the side bar.</source>
        <translation>انقر نقرًا مزدوجًا لإخفاء الشريط الجانبي أو إظهاره.</translation>
    </message>
</context>
<context>
    <name>moravel::StartSide</name>
    <message>
        <source>Start at &amp;Login</source>
        <translation>ال&amp;بدء عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Error changing the start at login.</source>
        <translation>حدث خطأ عند تغيير البدء عند تسجيل الدخول.</translation>
    </message>
</context>
<context>
    <name>moravel::ThumbView</name>
    <message>
        <source>Double-click to set as desktop.</source>
        <translation>انقر نقرًا مزدوجًا لتعيينها خلفية.</translation>
    </message>
    <message>
        <source>Looking for new pic...</source>
        <translation>يجري البحث عن صورة جديدة…</translation>
    </message>
    <message>
        <source>Delete this pic.</source>
        <translation>حذف هذه الصورة.</translation>
    </message>
    <message>
        <source>Change to a new random desktop now.</source>
        <translation>التغيير الآن إلى خلفية عشوائية جديدة.</translation>
    </message>
    <message>
        <source>Go back to the previous desktop pic.</source>
        <translation>العودة إلى الخلفية السابقة.</translation>
    </message>
    <message>
        <source>See more info about this pic.</source>
        <translation>عرض مزيد من المعلومات عن هذه الصورة.</translation>
    </message>
    <message>
        <source>Refresh the data for this pic.</source>
        <translation>تحديث بيانات هذه الصورة.</translation>
    </message>
    <message>
        <source>Nothing on %1</source>
        <translation>لا شيء في %1</translation>
    </message>
    <message>
        <source>No answer for %1</source>
        <translation>لا رد عن %1</translation>
    </message>
    <message>
        <source>Nothing from this day to %1</source>
        <translation>لا شيء من هذا اليوم حتى %1</translation>
    </message>
    <message>
        <source>The picture service did not answer</source>
        <translation>لم تستجب خدمة الصور</translation>
    </message>
    <message>
        <source>The picture could not be loaded</source>
        <translation>تعذّر تحميل الصورة</translation>
    </message>
</context>
<context>
    <name>moravel::ToolTips</name>
    <message>
        <source>Show T&amp;ool Tips</source>
        <translation>إظهار التلمي&amp;حات</translation>
    </message>
    <message>
        <source>Click here to see the pic in it&apos;s original web page.</source>
        <translation>انقر هنا لرؤية الصورة في صفحة الويب الأصلية.</translation>
    </message>
</context>
<context>
    <name>moravel::WelcomePanel</name>
    <message>
        <source>Welcome to Moravel</source>
        <translation>مرحبًا بك في Moravel</translation>
    </message>
    <message>
        <source>Choose the sources whose pictures of the day you want to see. You can change this at any time in the Sources menu.</source>
        <translation>اختر المصادر التي تريد رؤية صور اليوم منها. يمكن تغيير هذا الاختيار في أي وقت من قائمة «المصادر».</translation>
    </message>
    <message>
        <source>Show &amp;Pictures</source>
        <translation>عرض الصو&amp;ر</translation>
    </message>
</context>
</TS>
