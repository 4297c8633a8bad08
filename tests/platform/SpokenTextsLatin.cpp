// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/SpokenTexts.h"

namespace {

constexpr std::uint32_t western[] = {12, 0x8000020F, 0x80000410};
constexpr std::uint32_t central[] = {15, 9, 0x80000412};

constexpr SpokenText texts[] = {
    {"English", western,
     R"(I thought nobody would come to the café any more.
That night the moon was shining above the façade.
Don’t be afraid, it’s only the wind.
Now do you understand why I came back?
If you don’t help me, I’ll try it alone.
Where were you last night between ten and midnight?
“You’re lying! I saw you at the station.”
Please don’t shoot, I have two children…
Thank God. Can I see her? – Of course.
How much money do you owe them? £500?
We have to leave the city before dawn.
I love you. I have always loved you.
Who is that naïve man by the window?
What happened to your face?
Open the door or we’ll break it down!
Would you like some tea or coffee, Zoë?
Happy birthday, grandmother! How old are you?
The key is under the flowerpot next to the gate.
Call the police immediately!
“You promised me that already last year.”
It was the best summer of my life, Renée.
I can’t find my mother.
Listen carefully, because I’ll say it only once.
Twenty years of war, and for what? A cliché.
One day all of this will be yours.
The boss wants to see you in his office right away.
Do you hear that déjà vu? The bells are ringing.
Eat something, you’ve grown thin.
If I die, give this résumé to her.
The end is only a new beginning.)"},
    {"French", western,
     R"(Je croyais que plus personne ne viendrait.
Cette nuit-là, la lune brillait au-dessus de la rivière.
N’aie pas peur, ce n’est que le vent.
Tu comprends maintenant pourquoi je suis revenu ?
Si vous ne m’aidez pas, j’essaierai tout seul.
Où étiez-vous hier soir entre dix heures et minuit ?
Vous mentez ! Je vous ai vu à la gare.
Ne tirez pas, je vous en prie, j’ai deux enfants.
Dieu merci. Est-ce que je peux la voir ?
Combien d’argent est-ce que tu leur dois ?
Nous devons quitter la ville avant l’aube.
Je t’aime. Je t’ai toujours aimée.
Qui est cet homme près de la fenêtre ?
Qu’est-ce qui est arrivé à ton visage ?
Ouvrez la porte, ou on l’enfonce !
Voulez-vous du thé ou du café ?
Bon anniversaire, grand-mère ! Ça te fait quel âge ?
La clé est sous le pot de fleurs, à côté du portail.
Appelez la police immédiatement !
Tu me l’avais déjà promis l’année dernière.
C’était le plus bel été de ma vie.
Je ne trouve plus ma mère.
Écoute-moi bien, parce que je ne le dirai qu’une fois.
Vingt ans de guerre, et pour quoi ?
Un jour, tout cela sera à toi.
Le patron veut te voir dans son bureau tout de suite.
Tu entends ? Les cloches sonnent.
Mange quelque chose, tu as maigri.
Si je meurs, donne-lui cette lettre, mon cœur.
La fin n’est qu’un nouveau commencement.)"},
    {"German", western,
     R"(Ich dachte, es würde niemand mehr kommen.
In jener Nacht schien der Mond über dem Fluss.
Hab keine Angst, das ist nur der Wind.
Verstehst du jetzt, warum ich zurückgekommen bin?
Wenn Sie mir nicht helfen, versuche ich es allein.
Wo waren Sie gestern Nacht zwischen zehn und zwölf?
Sie lügen! Ich habe Sie am Bahnhof gesehen.
Bitte nicht schießen, ich habe zwei Kinder.
Gott sei Dank. Kann ich sie sehen?
Wie viel Geld schuldest du denen?
Wir müssen die Stadt vor Sonnenaufgang verlassen.
Ich liebe dich. Ich habe dich immer geliebt.
Wer ist der Mann dort am Fenster?
Was ist mit deinem Gesicht passiert?
Öffnen Sie die Tür, oder wir brechen sie auf!
Möchten Sie Tee oder Kaffee?
Alles Gute zum Geburtstag, Großmutter! Wie alt wirst du?
Der Schlüssel liegt unter dem Blumentopf neben dem Tor.
Rufen Sie sofort die Polizei!
Das hast du mir schon letztes Jahr versprochen.
Es war der schönste Sommer meines Lebens.
Ich kann meine Mutter nicht finden.
Hör gut zu, denn ich sage es nur einmal.
Zwanzig Jahre Krieg, und wofür?
Eines Tages wird das alles dir gehören.
Der Chef will dich sofort in seinem Büro sehen.
Hörst du das? Die Glocken läuten.
Iss etwas, du bist dünn geworden.
Wenn ich sterbe, gib ihr diesen Brief.
„Das Ende ist nur ein neuer Anfang.“)"},
    {"Spanish", western,
     R"(Pensé que ya no vendría nadie.
Aquella noche la luna brillaba sobre el río.
No tengas miedo, sólo es el viento.
¿Entiendes ahora por qué he vuelto?
Si no me ayuda, lo intentaré yo solo.
¿Dónde estaba anoche entre las diez y las doce?
¡Miente! Yo lo vi en la estación.
No dispare, por favor, tengo dos niños.
Gracias a Dios. ¿Puedo verla?
¿Cuánto dinero les debes?
Tenemos que salir de la ciudad antes del amanecer.
Te quiero. Siempre te he querido.
¿Quién es ese hombre que está junto a la ventana?
¿Qué te ha pasado en la cara?
¡Abran la puerta o la echamos abajo!
¿Quiere té o café, señora?
¡Feliz cumpleaños, abuela! ¿Cuántos años cumples?
La llave está debajo de la maceta, al lado de la verja.
¡Llame a la policía ahora mismo!
Eso ya me lo prometiste el año pasado.
Fue el mejor verano de mi vida.
No encuentro a mi mamá.
Escucha bien, porque sólo lo diré una vez.
Veinte años de guerra, ¿y para qué?
Algún día todo esto será tuyo.
El jefe quiere verte en su despacho ahora mismo, muchacho.
¿Oyes eso? Están sonando las campanas.
Come algo, que has adelgazado.
Si muero, dale esta carta. ¿Me oyes?
El fin no es más que un nuevo comienzo.)"},
    {"Portuguese", western,
     R"(Pensei que já não viesse ninguém.
Naquela noite a lua brilhava sobre o rio.
Não tenhas medo, é só o vento.
Agora você entende por que eu voltei?
Se não me ajudar, vou tentar sozinho.
Onde é que o senhor estava ontem à noite?
Está mentindo! Eu vi você na estação.
Por favor, não atire, tenho dois filhos. Compaixão!
Graças a Deus. Posso vê-la?
Quanto dinheiro você deve a eles?
Temos de sair da cidade antes do amanhecer.
Eu te amo. Sempre te amei, meu coração.
Quem é aquele homem junto à janela?
O que aconteceu com o seu rosto?
Abram a porta ou nós a arrombamos!
Quer chá ou café?
Parabéns, vovó! Quantos anos a senhora faz?
A chave está debaixo do vaso, ao lado do portão.
Chame a polícia imediatamente!
Você já me prometeu isso no ano passado, não foi?
Foi o melhor verão da minha vida.
Não encontro a minha mãe.
Escute bem, porque só vou dizer uma vez.
Vinte anos de guerra, e para quê?
Um dia tudo isto será teu.
O chefe quer vê-lo no escritório agora mesmo.
Ouviu isso? Os sinos estão tocando. São três horas.
Come alguma coisa, você emagreceu. Está pálida.
Se eu morrer, entregue-lhe esta carta. Não se esqueça.
O fim é apenas um novo começo.)"},
    {"Italian", western,
     R"(Pensavo che non sarebbe più venuto nessuno.
Quella notte la luna splendeva sopra il fiume. Era così bella.
Non avere paura, è soltanto il vento.
Adesso capisci perché sono tornato?
Se lei non mi aiuta, ci proverò da solo.
Dov’era ieri sera tra le dieci e mezzanotte?
Lei mente! L’ho vista alla stazione, lunedì.
Per favore, non sparate, ho due bambini. Pietà!
Grazie a Dio. Posso vederla?
Quanti soldi devi a quella gente?
Dobbiamo lasciare la città prima dell’alba.
Ti amo. Ti ho sempre amata. La verità è questa.
Chi è quell’uomo vicino alla finestra?
Che cosa è successo alla tua faccia?
Aprite la porta o la buttiamo giù!
Vuole un tè o un caffè?
Buon compleanno, nonna! Quanti anni hai? Non si può dire.
La chiave è sotto il vaso, accanto al cancello.
Chiami subito la polizia!
Me l’avevi già promesso l’anno scorso.
È stata la più bella estate della mia vita.
Non trovo più la mia mamma.
Ascolta bene, perché lo dirò una volta sola.
Vent’anni di guerra, e per che cosa? Libertà?
Un giorno tutto questo sarà tuo.
Il capo vuole vederti subito nel suo ufficio. Perciò vai.
Senti? Stanno suonando le campane. Che felicità!
Mangia qualcosa, sei dimagrito. Di più!
Se muoio, dalle questa lettera. Lei capirà.
La fine è soltanto un nuovo inizio.)"},
    {"Dutch", western,
     R"(Ik dacht dat er niemand meer zou komen. Eén man maar.
Die nacht scheen de maan boven de rivier.
Wees niet bang, het is alleen maar de wind, schat.
Begrijp je nu waarom ik teruggekomen ben?
Als u me niet helpt, probeer ik het alleen.
Waar was u gisteravond tussen tien uur en middernacht?
U liegt! Ik heb u op het station gezien.
Niet schieten alsjeblieft, ik heb twee kinderen.
Goddank. Mag ik haar zien, officiële bezoeker of niet?
Hoeveel geld ben je ze schuldig?
We moeten de stad verlassen vóór de zon opkomt.
Ik hou van je. Ik heb altijd van je gehouden.
Wie is die man daar bij het raam?
Wat is er met je gezicht gebeurd, Zoë?
Doe de deur open, of we trappen hem in!
Wilt u thee of koffie? Of een glas rosé?
Gefeliciteerd, oma! Hoe oud bent u geworden?
De sleutel ligt onder de bloempot naast het hek.
Bel onmiddellijk de politie! Er is niemand geïnteresseerd.
Dat heb je me vorig jaar ook al beloofd.
Het was de mooiste zomer van mijn leven.
Ik kan mijn moeder niet vinden. Ze heet Noëlle.
Luister goed, want ik zeg het maar één keer.
Twintig jaar oorlog, en waarvoor? Voor de Oekraïne?
Op een dag is dit allemaal van jou. Patiënt zijn.
De baas wil je meteen op zijn kantoor spreken.
Hoor je dat? De klokken luiden. Wat een scène!
Eet toch iets, je bent mager geworden. Crème brûlée?
Als ik doodga, geef haar dan deze brief. Drieëntwintig jaar.
Het einde is alleen een nieuw begin. Egoïst.)"},
    {"Swedish", western,
     R"(Jag trodde inte att någon skulle komma längre.
Den natten sken månen över floden.
Var inte rädd, det är bara vinden.
Förstår du nu varför jag kom tillbaka?
Om ni inte hjälper mig försöker jag ensam.
Var var ni i går kväll mellan tio och midnatt?
Ni ljuger! Jag såg er på stationen.
Skjut inte, snälla, jag har två barn.
Tack gode Gud. Får jag träffa henne?
Hur mycket pengar är du skyldig dem?
Vi måste lämna staden före gryningen.
Jag älskar dig. Jag har alltid älskat dig.
Vem är den där mannen vid fönstret?
Vad har hänt med ditt ansikte?
Öppna dörren, annars slår vi in den!
Vill du ha te eller kaffe? Och en kaka därtill?
Grattis på födelsedagen, mormor! Hur gammal är du?
Nyckeln ligger under blomkrukan bredvid grinden. Just där.
Ring polisen på en gång!
Det lovade du mig redan förra året.
Det var den bästa sommaren i mitt liv.
Jag hittar inte min mamma någonstans.
Lyssna noga, för jag säger det bara en gång.
Tjugo år av krig, och för vad då?
En dag kommer allt det här att vara ditt.
Chefen vill se dig på sitt kontor på en gång.
Hör du det där? Klockorna ringer.
Ät någonting, du har blivit mager.
Om jag dör, ge henne det här brevet.
Slutet är bara en ny början.)"},
    {"Danish", western,
     R"(Jeg troede ikke, der kom nogen længere.
Den nat skinnede månen over floden.
Vær ikke bange, det er kun vinden.
Forstår du nu, hvorfor jeg kom tilbage?
Hvis De ikke hjælper mig, prøver jeg alene.
Hvor var De i aftes mellem ti og midnat? På værtshus?
De lyver! Jeg så Dem på stationen.
Lad være med at skyde, jeg har to børn.
Gud ske lov. Må jeg se hende?
Hvor mange penge skylder du dem?
Vi må forlade byen før daggry.
Jeg elsker dig. Jeg har altid elsket dig. Også nu.
Hvem er den mand henne ved vinduet? Ham med håret?
Hvad er der sket med dit ansigt? Du bløder.
Luk døren op, ellers slår vi den ind!
Vil De have te eller kaffe? Og en småkage?
Tillykke med fødselsdagen, bedstemor! Hvor gammel er du?
Nøglen ligger under urtepotten ved siden af lågen.
Ring til politiet med det samme! Skynd dig nu, Jørgen.
Det lovede du mig allerede sidste år.
Det var den bedste sommer i mit liv. Åh, hvor jeg savner den.
Jeg kan ikke finde min mor. Hun var lige dér på broen.
Hør godt efter, for jeg siger det kun én gang.
Tyve års krig, og for hvad? For ære?
En dag bliver alt det her dit. Både hus og mark og sø.
Chefen vil se dig på sit kontor lige nu.
Kan du høre det? Klokkerne ringer. Det er påske.
Spis noget, du er blevet tynd. Der er brød og smør.
Hvis jeg dør, så giv hende dette brev.
Slutningen er kun en ny begyndelse. Måske.)"},
    {"Norwegian", western,
     R"(Jeg trodde ikke det kom noen lenger. Så sent på året.
Den natten skinte månen over elva.
Ikke vær redd, det er bare vinden. Den går snart over.
Skjønner du nå hvorfor jeg kom tilbake?
Hvis dere ikke hjelper meg, får jeg prøve alene.
Hvor var du i går kveld mellom ti og midnatt?
Du lyver! Jeg så deg på stasjonen.
Ikke skyt, vær så snill, jeg har to barn.
Gudskjelov. Kan jeg få se henne?
Hvor mye penger skylder du dem? Er det mange tusen? Åtte?
Vi må dra fra byen før det blir lyst.
Jeg elsker deg. Jeg har alltid elsket deg. Også i går.
Hvem er den mannen borte ved vinduet? Han med blå øyne?
Hva har skjedd med ansiktet ditt? Blør du?
Lukk opp døra, ellers slår vi den inn!
Vil du ha te eller kaffe? Kanskje et stykke brød?
Gratulerer med dagen, bestemor! Hvor gammel er du i år?
Nøkkelen ligger under blomsterpotta ved siden av porten.
Ring politiet med én gang! Før de rømmer!
Det lovte du meg allerede i fjor. Og året før.
Det var den beste sommeren i mitt liv. Vi rodde på sjøen.
Jeg finner ikke mammaen min. Hun sto like ved båten.
Hør godt etter, for jeg sier det bare én gang.
Tjue år med krig, og for hva? For ære og gull?
En dag skal alt dette bli ditt. Både skog og sjø.
Sjefen vil se deg på kontoret sitt nå med det samme.
Hører du det? Klokkene ringer. Det er påske.
Spis noe, du er blitt så tynn. Smør og brød på bordet.
Hvis jeg dør, så gi henne dette brevet. Lover du det? Så fint.
Slutten er bare en ny begynnelse. Kjære, så vakkert.)"},
    {"Finnish", western,
     R"(Luulin, ettei kukaan enää tulisi tänne.
Sinä yönä kuu paistoi joen yllä.
Älä pelkää, se on vain tuuli.
Ymmärrätkö nyt, miksi tulin takaisin?
Jos ette auta minua, yritän sitä yksin.
Missä olitte eilen illalla kymmenen ja puolenyön välillä?
Te valehtelette! Näin teidät asemalla.
Älkää ampuko, minulla on kaksi lasta.
Luojan kiitos. Saanko nähdä hänet?
Paljonko rahaa olet heille velkaa?
Meidän on lähdettävä kaupungista ennen aamua.
Minä rakastan sinua. Olen aina rakastanut sinua.
Kuka on tuo mies ikkunan vieressä?
Mitä kasvoillesi on tapahtunut?
Avatkaa ovi, tai me murramme sen!
Haluatteko teetä vai kahvia?
Hyvää syntymäpäivää, isoäiti! Kuinka vanha sinä olet?
Avain on kukkaruukun alla portin vieressä. Etsi sieltä.
Soittakaa heti poliisille! Nyt äkkiä!
Sen sinä lupasit minulle jo viime vuonna. Etkö enää muista sitä?
Se oli elämäni paras kesä.
En löydä äitiäni.
Kuuntele tarkkaan, sillä sanon tämän vain kerran. Pysy hiljaa nyt, äläkä puhu.
Kaksikymmentä vuotta sotaa, ja minkä vuoksi?
Jonain päivänä tämä kaikki on sinun.
Pomo haluaa nähdä sinut heti työhuoneessaan.
Kuuletko tuon? Kellot soivat. Kuinka kaunista tänä yönä.
Syö jotakin, olet laihtunut.
Jos minä kuolen, anna hänelle tämä kirje.
Loppu on vain uusi alku. Näkemiin.)"},
    {"Icelandic", western,
     R"(Ég hélt að enginn kæmi lengur.
Þessa nótt skein tunglið yfir ánni.
Ekki vera hræddur, þetta er bara vindurinn.
Skilurðu núna hvers vegna ég kom aftur?
Ef þú hjálpar mér ekki reyni ég það einn.
Hvar varstu í gærkvöldi milli tíu og miðnættis?
Þú lýgur! Ég sá þig á stöðinni.
Ekki skjóta, gerðu það, ég á tvö börn.
Guði sé lof. Má ég sjá hana?
Hvað skuldarðu þeim mikla peninga?
Við verðum að fara úr borginni fyrir dögun.
Ég elska þig. Ég hef alltaf elskað þig.
Hver er þessi maður við gluggann?
Hvað kom fyrir andlitið á þér?
Opnið dyrnar eða við brjótum þær niður!
Viltu te eða kaffi? Eða kannski mjólk?
Til hamingju með afmælið, amma! Hvað ertu gömul?
Lykillinn er undir blómapottinum við hliðið.
Hringdu strax á lögregluna!
Þú lofaðir mér þessu strax í fyrra.
Þetta var besta sumar ævi minnar.
Ég finn ekki mömmu mína.
Hlustaðu vel, því ég segi þetta bara einu sinni.
Tuttugu ára stríð, og til hvers?
Einn daginn verður þetta allt þitt.
Stjórinn vill hitta þig á skrifstofunni sinni núna.
Heyrirðu þetta? Klukkurnar hringja.
Borðaðu eitthvað, þú ert orðinn svo grannur.
Ef ég dey, láttu hana fá þetta bréf.
Endirinn er aðeins nýtt upphaf.)"},
    {"Catalan", western,
     R"(Em pensava que ja no vindria ningú més.
Aquella nit la lluna brillava damunt del riu. Què bonica!
No tinguis por, només és el vent.
Ara entens per què he tornat?
Si no m’ajuda, ho provaré jo sol. És la meva decisió.
On era vostè ahir a la nit, entre les deu i les dotze?
Menteix! Jo el vaig veure a l’estació.
No dispari, sisplau, que tinc dos fills. Tingui compassió.
Gràcies a Déu. La puc veure?
Quants diners els deus? Només la veritat.
Hem de marxar de la ciutat abans que es faci de dia. Això sí.
T’estimo. Sempre t’he estimat. I tu també a mi.
Qui és aquell home del costat de la finestra?
Què t’ha passat a la cara?
Obriu la porta o la tirem a terra! És la policia!
Vol te o cafè?
Per molts anys, àvia! Quants anys fas?
La clau és sota el test, al costat de la porta del jardí.
Truqui a la policia de seguida! Això és un robatori.
Això ja m’ho vas prometre l’any passat.
Va ser el millor estiu de la meva vida. Érem joves.
No trobo la meva mare. Té els cabells llargs i és alta.
Escolta bé, perquè només ho diré una vegada.
Vint anys de guerra, i per a què?
Un dia tot això serà teu.
El cap et vol veure al seu despatx ara mateix. És urgent.
Ho sents? Sonen les campanes. És la missa, l’il·lustre bisbe.
Menja alguna cosa, que t’has aprimat. Hi ha pa i llonganissa, col·lega.
Si em moro, dóna-li aquesta carta.
El final només és un nou començament.)"},
    {"Albanian", western,
     R"(Mendova se nuk do të vinte më askush.
Atë natë hëna shkëlqente mbi lumë.
Mos ki frikë, është vetëm era.
A e kupton tani pse u ktheva?
Nëse nuk më ndihmoni, do ta provoj vetë.
Ku ishit mbrëmë midis orës dhjetë dhe mesnatës?
Po gënjeni! Ju pashë në stacion.
Ju lutem mos qëlloni, kam dy fëmijë.
Falë Zotit. A mund ta shoh?
Sa para u ke borxh atyre, çuni im?
Duhet të largohemi nga qyteti para agimit.
Të dua. Gjithmonë të kam dashur.
Kush është ai burri pranë dritares?
Çfarë të ka ndodhur në fytyrë?
Hapeni derën ose do ta thyejmë!
Doni çaj apo kafe?
Gëzuar ditëlindjen, gjyshe! Sa vjeç u bëre?
Çelësi është nën vazon e luleve pranë portës.
Telefononi menjëherë policinë!
Këtë ma premtove edhe vitin e kaluar.
Ishte vera më e bukur e jetës sime.
Nuk po e gjej dot nënën time.
Dëgjo mirë, sepse do ta them vetëm një herë.
Njëzet vjet luftë, dhe për çfarë?
Një ditë e gjithë kjo do të jetë jotja.
Shefi do të të shohë menjëherë në zyrën e tij.
E dëgjon? Po bien këmbanat.
Ha diçka, je dobësuar.
Nëse vdes, jepja asaj këtë letër.
Fundi është vetëm një fillim i ri. Në rregull?)"},
    {"Polish", central,
     R"(Myślałem, że już nikt nie przyjdzie.
Tamtej nocy księżyc świecił nad rzeką.
Nie bój się, to tylko wiatr.
Rozumiesz teraz, dlaczego wróciłem?
Jeśli mi pan nie pomoże, spróbuję sam.
Gdzie pan był wczoraj między dziesiątą a północą?
Kłamie pan! Widziałem pana na dworcu.
Proszę nie strzelać, mam dwoje dzieci.
Dzięki Bogu. Czy mogę ją zobaczyć?
Ile pieniędzy jesteś im winien?
Musimy opuścić miasto przed świtem.
Kocham cię. Zawsze cię kochałem.
Kim jest ten mężczyzna przy oknie?
Co ci się stało w twarz?
Otwierać drzwi, bo je wyważymy!
Napije się pani herbaty czy kawy?
Wszystkiego najlepszego, babciu! Ile masz lat?
Klucz leży pod doniczką obok furtki.
Proszę natychmiast wezwać policję!
Obiecałeś mi to już w zeszłym roku.
To było najlepsze lato w moim życiu.
Nie mogę znaleźć mamy.
Słuchaj uważnie, bo powiem to tylko raz.
Dwadzieścia lat wojny i po co?
Pewnego dnia to wszystko będzie twoje.
Szef chce cię natychmiast widzieć w gabinecie.
Słyszysz? Dzwony biją.
Zjedz coś, schudłeś.
Jeśli umrę, oddaj jej ten list.
Koniec to tylko nowy początek. Źle mówię?)"},
    {"Czech", central,
     R"(Myslel jsem, že už nikdo nepřijde.
Tu noc svítil měsíc nad řekou.
Neboj se, to je jenom vítr.
Chápeš teď, proč jsem se vrátil?
Jestli mi nepomůžete, zkusím to sám.
Kde jste byl včera v noci mezi desátou a půlnocí?
Lžete! Viděl jsem vás na nádraží.
Prosím, nestřílejte, mám dvě děti.
Díky Bohu. Můžu ji vidět?
Kolik peněz jim dlužíš?
Musíme odjet z města před úsvitem.
Miluju tě. Vždycky jsem tě miloval.
Kdo je ten muž u okna?
Co se ti stalo s obličejem?
Otevřete dveře, nebo je vyrazíme!
Dáte si čaj, nebo kávu?
Všechno nejlepší, babičko! Kolik ti je?
Klíč je pod květináčem vedle branky.
Okamžitě zavolejte policii!
To jsi mi slíbil už loni.
Bylo to nejlepší léto mého života.
Nemůžu najít maminku.
Dobře poslouchej, protože to řeknu jenom jednou.
Dvacet let války, a kvůli čemu?
Jednoho dne to všechno bude tvoje.
Šéf tě chce hned vidět ve své kanceláři.
Slyšíš to? Zvony zvoní.
Něco sněz, zhubl jsi.
Jestli umřu, dej jí tenhle dopis.
Konec je jen nový začátek. Ďábel ví.)"},
    {"Slovak", central,
     R"(Myslel som, že už nikto nepríde.
V tú noc svietil mesiac nad riekou.
Neboj sa, to je len vietor.
Chápeš už, prečo som sa vrátil?
Ak mi nepomôžete, skúsim to sám.
Kde ste boli včera v noci medzi desiatou a polnocou?
Klamete! Videl som vás na stanici.
Prosím, nestrieľajte, mám dve deti.
Vďaka Bohu. Môžem ju vidieť?
Koľko peňazí im dlhuješ?
Musíme odísť z mesta pred úsvitom.
Ľúbim ťa. Vždy som ťa ľúbil.
Kto je ten muž pri okne?
Čo sa ti stalo s tvárou?
Otvorte dvere, lebo ich vyrazíme!
Dáte si čaj alebo kávu?
Všetko najlepšie, babička! Koľko máš rokov?
Kľúč je pod kvetináčom vedľa bránky.
Okamžite zavolajte políciu!
To si mi sľúbil už vlani.
Bolo to najkrajšie leto môjho života.
Neviem nájsť mamičku.
Dobre počúvaj, lebo to poviem iba raz.
Dvadsať rokov vojny, a kvôli čomu?
Jedného dňa to všetko bude tvoje.
Šéf ťa chce hneď vidieť vo svojej kancelárii.
Počuješ to? Zvony zvonia.
Zjedz niečo, schudol si.
Ak zomriem, daj jej tento list.
Koniec je len nový začiatok. Stĺp spadol.)"},
};

} // namespace

std::span<const SpokenText> textsInLatinLetters() {
    return texts;
}
