// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

/// A text as a film's subtitles might hold it, in UTF-8, and an encoding that its speakers' old files are in.
struct EncodingText {
    const char* language;
    std::uint32_t encoding;
    const char* text;
};

inline constexpr EncodingText encodingTexts[] = {
    {"Polish", 15,
     R"(Dzień dobry, panie komisarzu. Długo pan na nas czekał?
Od rana siedzę w tym zimnym pociągu i patrzę na śnieg.
Myślałem, że już nikt nie przyjdzie, ale wciąż miałem nadzieję.
Moja żona mówi, że jestem za bardzo cierpliwy.
Proszę usiąść, opowiem panu całą historię od początku.
Tamtej nocy księżyc świecił nad rzeką, a my łowiliśmy ryby.
Nagle usłyszeliśmy krzyk z drugiego brzegu i zgasło światło.
Mój brat powiedział, żebym się nie bał, bo to tylko wiatr.
Później znaleźliśmy w trawie złoty pierścień i list do matki.
Nikt w miasteczku nie chciał nam uwierzyć, nawet ksiądz.
Teraz pan rozumie, dlaczego wróciłem po tylu latach?
Właśnie dlatego muszę się dowiedzieć, kto wtedy krzyczał.
Jeśli pan mi nie pomoże, spróbuję sam, choćby mnie zamknęli.
Niech pan weźmie płaszcz, na dworze jest straszny mróz.
Świetnie, chodźmy więc razem, zanim zrobi się całkiem ciemno.)"},
    {"Russian", 11,
     R"(Доброе утро, товарищ капитан. Вы давно нас ждёте?
С самого утра сижу в этом холодном поезде и смотрю на снег.
Я думал, что никто уже не придёт, но всё же надеялся.
Моя жена говорит, что я слишком терпеливый человек.
Садитесь, пожалуйста, я расскажу вам всё с начала.
В ту ночь луна светила над рекой, а мы ловили рыбу.
Вдруг мы услышали крик с другого берега, и погас свет.
Мой брат сказал, чтобы я не боялся, потому что это ветер.
Потом мы нашли в траве золотое кольцо и письмо к матери.
Никто в городе не хотел нам верить, даже старый врач.
Теперь вы понимаете, почему я вернулся через столько лет?
Именно поэтому я должен узнать, кто тогда кричал.
Если вы мне не поможете, я попробую сам.
Возьмите пальто, на улице страшный мороз.
Хорошо, пойдёмте вместе, пока ещё не совсем темно.)"},
    {"French", 12,
     R"(Bonjour, monsieur le commissaire. Vous nous attendez depuis longtemps ?
Je suis assis dans ce train glacé depuis ce matin, à regarder la neige.
J’ai cru que plus personne ne viendrait, mais j’espérais encore.
Ma femme dit que je suis beaucoup trop patient, et têtu.
Asseyez-vous, s’il vous plaît, je vais tout vous raconter depuis le début.
Cette nuit-là, la lune éclairait la rivière et nous pêchions.
Soudain, un cri a retenti de l’autre côté, et la lumière s’est éteinte.
Mon frère m’a dit de ne pas avoir peur : ce n’était que le vent.
Plus tard, nous avons trouvé une bague dorée et une lettre à ma mère.
Personne au village n’a voulu nous croire, même pas le curé.
Vous comprenez maintenant pourquoi je suis revenu après tant d’années ?
C’est pour ça que je dois découvrir qui a crié ce soir-là.
Si vous ne m’aidez pas, j’essaierai tout seul, où que ça me mène.
Prenez votre manteau, il gèle à pierre fendre dehors.
Très bien, allons-y ensemble avant que la nuit ne tombe.)"},
    {"Arabic", 0x80000506,
     R"(صباح الخير يا سيدي المفتش. هل تنتظرنا منذ وقت طويل؟
أجلس منذ الصباح في هذا القطار البارد وأنظر إلى الثلج.
ظننت أنه لن يأتي أحد، ولكن كان عندي أمل كبير.
تقول زوجتي إنني رجل صبور جدا ولا أعرف الغضب.
تفضل بالجلوس، سوف أحكي لك القصة كلها من البداية.
في تلك الليلة كان القمر يضيء فوق النهر ونحن نصيد السمك.
وفجأة سمعنا صراخا من الجانب الآخر وانطفأ النور.
قال لي أخي لا تخف، إنه صوت الريح فقط في الأشجار.
بعد ذلك وجدنا في العشب خاتما من الذهب ورسالة إلى أمي.
لم يصدقنا أحد في المدينة، حتى الطبيب العجوز.
هل تفهم الآن لماذا عدت بعد كل هذه السنوات؟
لهذا السبب يجب أن أعرف من كان يصرخ في ذلك الوقت.
إذا لم تساعدني فسوف أحاول وحدي مهما كان الثمن.
خذ معطفك معك، الجو بارد جدا في الخارج هذا المساء.
حسنا، هيا بنا نذهب معا قبل أن يأتي الليل.)"},
    {"Japanese", 8,
     R"(おはようございます、警部さん。ずいぶんお待たせしましたか。
朝からこの寒い列車に座って、雪をながめていました。
もう誰も来ないと思いましたが、それでも希望は捨てませんでした。
妻は私のことを、がまん強すぎる人だと言います。
どうぞお座りください。最初から全部お話しします。
あの夜、月が川を照らし、私たちは魚を釣っていました。
突然、向こう岸から叫び声が聞こえて、ランプの明かりが消えました。
兄は、ただの風だから怖がるなと言いました。
そのあと草むらで金の指輪と、母への手紙を見つけました。
町の人は誰も信じてくれませんでした。年をとった医者もです。
なぜ私が何年もたって戻ってきたのか、わかりましたか。
だから、あのとき叫んだのが誰なのか、知らなければならないのです。
助けてくださらないなら、ひとりでもやってみます。
コートを持っていってください。外はとても寒いです。
では、暗くなる前にいっしょに出かけましょう。ポケットのマッチを忘れずに。)"},
    {"simplified Chinese", 0x80000632,
     R"(早上好，警官先生。您等我们很久了吗？
我从早上就坐在这列冰冷的火车里，看着外面的雪。
我以为不会有人来了，可是我一直没有放弃希望。
我的妻子说，我是一个太有耐心的人。
请坐吧，我会从头把整个故事告诉您。
那天夜里，月亮照在河面上，我们正在钓鱼。
忽然我们听见对岸有人大声喊叫，灯也灭了。
我哥哥对我说不要害怕，那只是风的声音。
后来我们在草地里找到了一枚金戒指和一封写给母亲的信。
城里没有人愿意相信我们，连那位老医生也不相信。
现在您明白我为什么过了这么多年还要回来了吗？
就是因为这个，我必须知道当时是谁在喊叫。
如果您不帮助我，我就自己一个人去试试看。
请带上您的大衣，外面冷得厉害。
好的，我们在天黑以前一起出发吧。)"},
    {"traditional Chinese", 0x80000A03,
     R"(早安，警官先生。您等我們很久了嗎？
我從早上就坐在這列冰冷的火車裡，看著外面的雪。
我以為不會有人來了，可是我一直沒有放棄希望。
我的妻子說，我是一個太有耐心的人。
請坐吧，我會從頭把整個故事告訴您。
那天夜裡，月亮照在河面上，我們正在釣魚。
忽然我們聽見對岸有人大聲喊叫，燈也滅了。
我哥哥對我說不要害怕，那只是風的聲音。
後來我們在草地裡找到了一枚金戒指和一封寫給母親的信。
城裡沒有人願意相信我們，連那位老醫生也不相信。
現在您明白我為什麼過了這麼多年還要回來了嗎？
就是因為這個，我必須知道當時是誰在喊叫。
如果您不幫助我，我就自己一個人去試試看。
請帶上您的大衣，外面冷得厲害。
好的，我們在天黑以前一起出發吧。)"},
    {"Korean", 0x80000422,
     R"(안녕하세요, 경감님. 저희를 오래 기다리셨습니까?
아침부터 이 추운 기차에 앉아서 눈을 바라보고 있었습니다.
이제 아무도 오지 않을 거라고 생각했지만 그래도 희망을 버리지 않았어요.
아내는 제가 너무 참을성이 많은 사람이라고 말합니다.
앉으세요. 처음부터 모든 이야기를 들려 드리겠습니다.
그날 밤 달이 강을 비추고 있었고 우리는 물고기를 잡고 있었습니다.
갑자기 건너편에서 비명 소리가 들리고 불이 꺼졌습니다.
형은 그냥 바람 소리니까 무서워하지 말라고 했습니다.
나중에 우리는 풀밭에서 금반지와 어머니께 쓴 편지를 찾았습니다.
마을 사람들은 아무도 우리를 믿지 않았습니다. 늙은 의사도 마찬가지였지요.
왜 제가 이렇게 오랜 세월이 지나서 돌아왔는지 이제 아시겠습니까?
그래서 그때 누가 소리를 질렀는지 꼭 알아야 합니다.
도와주지 않으시면 저 혼자서라도 해 보겠습니다.
외투를 가져가세요. 밖은 아주 춥습니다.
좋습니다. 어두워지기 전에 같이 갑시다.)"},
};
